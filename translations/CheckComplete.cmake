# Fails when the sources have a string that the catalogue does not translate:
# cmake -DUPDATE="lupdate ... -ts" -DCATALOGUE=file.ts -DCOPY=scratch.ts -P CheckComplete.cmake

file(COPY_FILE ${CATALOGUE} ${COPY})
execute_process(COMMAND ${UPDATE} ${COPY} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "lupdate failed")
endif()
file(READ ${COPY} text)
if(NOT text MATCHES "<source>m_tr_OK</source>")
    message(FATAL_ERROR "lupdate did not find the strings")
endif()
string(REGEX MATCHALL "<source>[^<]*</source>[^/]*<translation type=\"unfinished\"" missing "${text}")
if(missing)
    list(JOIN missing "\n" lines)
    message(FATAL_ERROR "Take these over with ./dev translations, and translate them:\n${lines}")
endif()
