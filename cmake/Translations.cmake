# SPDX-License-Identifier: MIT

# Qt's package of these tools for CMake would bring Designer and a help viewer along.
find_program(LRELEASE lrelease REQUIRED HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})
find_program(LUPDATE lupdate REQUIRED HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})

# Makes catalogues (.ts) part of a target, as the resources :/i18n/<name>.qm.
function(add_catalogues target)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/catalogues)
    foreach(source IN LISTS ARGN)
        cmake_path(GET source STEM name)
        add_custom_command(OUTPUT ${folder}/${name}.qm DEPENDS ${source} VERBATIM
            COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
            COMMAND ${LRELEASE} -silent ${source} -qm ${folder}/${name}.qm)
        list(APPEND compiled ${folder}/${name}.qm)
    endforeach()
    qt_add_resources(${target} ${target}_catalogues PREFIX /i18n BASE ${folder} FILES ${compiled})
endfunction()

# After a change of texts: cmake --build --preset release --target update_catalogues
file(GLOB VELTO_CATALOGUES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/*.ts)
set(UPDATE_CATALOGUES ${LUPDATE} ${PROJECT_SOURCE_DIR}/src -locations none -no-obsolete -no-ui-lines
    -tr-function-alias QT_TRANSLATE_NOOP+=translatable,QT_TRANSLATE_N_NOOP+=translatableCount -ts)
add_custom_target(update_catalogues COMMAND ${UPDATE_CATALOGUES} ${VELTO_CATALOGUES} VERBATIM)
