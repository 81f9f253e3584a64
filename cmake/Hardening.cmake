# SPDX-License-Identifier: MIT

# What makes a fault in the program harder to exploit, in every build. tests/e2e/install_test.py looks at the result.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fstack-protector-strong)
foreach(protection stack-clash cf) # not for every processor
    check_cxx_compiler_flag(-f${protection}-protection VELTO_HAS_${protection}_PROTECTION)
    if(VELTO_HAS_${protection}_PROTECTION)
        add_compile_options(-f${protection}-protection)
    endif()
endforeach()
add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)

# Needs an optimising compiler, and hides from the sanitizers what they look for. A packager's own choice stands.
if(NOT VELTO_SANITIZE AND NOT VELTO_FUZZ AND NOT "${CMAKE_CXX_FLAGS}" MATCHES "_FORTIFY_SOURCE")
    add_compile_options($<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
        $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=3>)
endif()
