# cmake -DTS=<file.ts> -DWORK=<dir> -DLUPDATE=<the lupdate command line of update_translations>
#       -P ZTCheckTranslation.cmake
# Runs lupdate on a copy of the .ts file and fails if that changes it (a text of the code is
# missing, or one is gone from the code), or if the .ts holds a text without a finished
# translation.
file(MAKE_DIRECTORY ${WORK})
get_filename_component(name ${TS} NAME)
set(copy ${WORK}/${name})
file(COPY_FILE ${TS} ${copy})
string(REPLACE "${TS}" "${copy}" command "${LUPDATE}")
execute_process(COMMAND ${command} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "lupdate failed:\n${output}")
endif()
if(output)
    message(FATAL_ERROR "lupdate reported problems in the sources:\n${output}")
endif()
file(READ ${TS} committed)
file(READ ${copy} updated)
if(NOT committed STREQUAL updated)
    message(FATAL_ERROR "${TS} is not up to date with the sources: build the target "
                        "update_translations, translate the new texts and commit the file")
endif()
string(FIND "${committed}" "type=\"unfinished\"" unfinished)
if(NOT unfinished EQUAL -1)
    message(FATAL_ERROR "${TS} has texts without a finished translation")
endif()
