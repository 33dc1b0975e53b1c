# Language level, hidden visibility, warnings, sanitizers and the compiler cache, for every target of this project.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(ZEL_CCACHE ccache)
if(ZEL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ZEL_CCACHE})
endif()

add_library(zel_warnings INTERFACE)
if(MSVC)
    target_compile_options(zel_warnings INTERFACE /W4 $<$<BOOL:${ZEL_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(zel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        -Wcast-qual $<$<BOOL:${ZEL_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

if(ZEL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(ZEL_FUZZ)
    # Without the fuzzer's main function, which only the fuzz targets are linked with.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
