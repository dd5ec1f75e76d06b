# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a text of the sources has no finished translation in some language: lupdate, run on
# copies of the .ts files, marks texts that are new or changed as unfinished.
#   cmake -DINPUTS=<file setting LUPDATE, LUPDATE_OPTIONS, CATALOGUES and, for each catalogue,
#         SOURCES_<catalogue> and TS_FILES_<catalogue>> -DWORK=<folder> -P ...
include(${INPUTS})
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
set(untranslated 0)
set(checked 0)
foreach(catalogue IN LISTS CATALOGUES)
    foreach(ts IN LISTS TS_FILES_${catalogue})
        get_filename_component(name ${ts} NAME)
        file(COPY ${ts} DESTINATION ${WORK})
        execute_process(
            COMMAND ${LUPDATE} -silent ${LUPDATE_OPTIONS} ${SOURCES_${catalogue}} -ts ${WORK}/${name}
            RESULT_VARIABLE result)
        if(NOT result EQUAL 0)
            message(FATAL_ERROR "lupdate failed on ${name}")
        endif()
        file(READ ${WORK}/${name} content)
        string(REGEX MATCHALL "<source>[^<]*</source>[ \n]*<translation type=\"unfinished\""
            waiting "${content}")
        foreach(entry IN LISTS waiting)
            string(REGEX REPLACE "<source>([^<]*)</source>.*" "\\1" text "${entry}")
            message("${name}: no translation of \"${text}\"")
            math(EXPR untranslated "${untranslated} + 1")
        endforeach()
        math(EXPR checked "${checked} + 1")
    endforeach()
endforeach()
file(REMOVE_RECURSE ${WORK})
if(untranslated GREATER 0)
    message(FATAL_ERROR "${untranslated} texts without translation: update the .ts files with "
        "the update_translations target and translate them")
endif()
message("every text translated in ${checked} .ts files of the catalogues ${CATALOGUES}")
