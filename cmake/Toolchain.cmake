# How every target of the project is compiled.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

find_program(TAMBLE_CCACHE ccache)
if(TAMBLE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${TAMBLE_CCACHE})
endif()

# A few files of a target are compiled at once, since most of the time goes into Qt's templates, which each would make
# anew; and GCC does not stop to look for memory to free.
set(CMAKE_UNITY_BUILD ON)
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)
add_compile_options($<$<CXX_COMPILER_ID:GNU>:--param=ggc-min-heapsize=500000>)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion)
if(TAMBLE_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()

add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

if(TAMBLE_SANITIZE)
    # Little optimisation and only lines for the reports: compiling takes twice as long otherwise, running hardly less.
    add_compile_options(
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -O1 -g1
    )
    add_link_options(-fsanitize=address,undefined)
elseif(NOT TAMBLE_BUILD_FUZZERS)
    # A sanitizer's run-time symbols are left undefined in shared libraries.
    add_link_options(LINKER:--no-undefined)
    # As Qt is linked: a library calls its own functions without asking all others at its start whether they have them.
    # Not so its data, of which a program that is not position-independent has copies.
    add_link_options(LINKER:-Bsymbolic-functions)
endif()
