# SPDX-License-Identifier: MIT

# Removes what the last `cmake --install` of the build in BUILD has put somewhere, and the folders that it made.
if(NOT EXISTS ${BUILD}/install_manifest.txt)
    message(FATAL_ERROR "Nothing is installed from ${BUILD}.")
endif()
file(STRINGS ${BUILD}/install_manifest.txt files)
foreach(file IN LISTS files)
    message(STATUS "Removing $ENV{DESTDIR}${file}")
    file(REMOVE "$ENV{DESTDIR}${file}")
endforeach()

file(STRINGS ${BUILD}/install_folders.txt folders)
list(SORT folders ORDER DESCENDING) # the inner ones first
foreach(folder IN LISTS folders)
    file(GLOB content "${folder}/*" "${folder}/.*")
    list(FILTER content EXCLUDE REGEX "/\\.\\.?$")
    if(IS_DIRECTORY "${folder}" AND NOT content)
        file(REMOVE_RECURSE "${folder}")
    endif()
endforeach()
file(REMOVE ${BUILD}/install_manifest.txt ${BUILD}/install_folders.txt)
