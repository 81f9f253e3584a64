# SPDX-License-Identifier: MIT

# Part of an installation, before its first file: adds the folders that it is about to make to the list in
# VELTO_FOLDERS, so that uninstalling leaves those alone that were there before.
file(GLOB_RECURSE scripts ${VELTO_BUILD}/cmake_install.cmake)
foreach(script IN LISTS scripts)
    file(STRINGS ${script} lines REGEX "DESTINATION \"")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE ".*DESTINATION \"([^\"]+)\".*" "\\1" folder "${line}")
        string(CONFIGURE "${folder}" folder)
        while(NOT EXISTS "$ENV{DESTDIR}${folder}")
            list(APPEND folders "$ENV{DESTDIR}${folder}")
            cmake_path(GET folder PARENT_PATH folder)
        endwhile()
    endforeach()
endforeach()
list(REMOVE_DUPLICATES folders)
foreach(folder IN LISTS folders)
    file(APPEND ${VELTO_FOLDERS} "${folder}\n")
endforeach()
