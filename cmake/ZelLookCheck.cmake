# zel_add_look_check(NAME name DIRECTORY directory [LANGUAGE tag])
#
# Adds a test that runs lookcheck over a graphics directory: it fails on any error or warning. Without LANGUAGE it checks
# the common look and that of every language that has a folder. A relative directory counts from the current source
# directory. The program is the target lookcheck where there is one; else it is searched for, first beside this package.
# ZEL_LOOKCHECK names another.

function(zel_add_look_check)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;DIRECTORY;LANGUAGE" "")
    if(arg_UNPARSED_ARGUMENTS OR arg_KEYWORDS_MISSING_VALUES)
        message(FATAL_ERROR "zel_add_look_check: cannot use: ${arg_UNPARSED_ARGUMENTS} ${arg_KEYWORDS_MISSING_VALUES}")
    endif()
    if(NOT arg_NAME OR NOT arg_DIRECTORY)
        message(FATAL_ERROR "zel_add_look_check: give NAME and DIRECTORY.")
    endif()
    cmake_path(ABSOLUTE_PATH arg_DIRECTORY NORMALIZE)

    set(program lookcheck) # a target's name, which add_test knows how to run
    if(NOT TARGET lookcheck)
        # From <prefix>/lib/cmake/<package>, and with a folder per architecture from one deeper.
        find_program(ZEL_LOOKCHECK lookcheck HINTS
            ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../../../bin ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../../../../bin)
        if(NOT ZEL_LOOKCHECK)
            message(FATAL_ERROR "zel_add_look_check: lookcheck was not found. On Debian it is in the package "
                                "zelcmnctrl03-tools. If it is installed elsewhere, set ZEL_LOOKCHECK to its path.")
        endif()
        set(program ${ZEL_LOOKCHECK})
    endif()

    set(language)
    if(DEFINED arg_LANGUAGE)
        set(language --language ${arg_LANGUAGE})
    endif()
    add_test(NAME ${arg_NAME} COMMAND ${program} ${language} ${arg_DIRECTORY})
endfunction()
