# Translations with Qt's lupdate and lrelease. Debian ships the two tools in qt6-l10n-tools without
# a CMake package (Qt6LinguistTools comes with qt6-tools-dev, which drags in Designer, Assistant
# and their libraries), so the tools are found here directly, beside Qt's other host tools.
find_program(ZT_LUPDATE NAMES lupdate-qt6 lupdate
    HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS}
          /usr/lib/qt6/bin
    NO_DEFAULT_PATH)
find_program(ZT_LRELEASE NAMES lrelease-qt6 lrelease
    HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS}
          /usr/lib/qt6/bin
    NO_DEFAULT_PATH)
if(NOT ZT_LUPDATE OR NOT ZT_LRELEASE)
    message(FATAL_ERROR "lupdate and lrelease of Qt 6 not found: apt-get install qt6-l10n-tools")
endif()

# The compiled catalogues of the build tree; ZTCore finds them here when nothing is installed.
set(ZT_TRANSLATIONS_BUILD_DIR ${CMAKE_BINARY_DIR}/translations)
set(ZT_TRANSLATIONS_INSTALL_DIR ${CMAKE_INSTALL_DATADIR}/ztapm/translations)

# zt_add_translation(<ts file> SOURCE_LANGUAGE <lang> SOURCES <file or folder> ...)
# Compiles the .ts file of this folder into <name>.qm of the build tree (part of `all`), installs
# it, and adds to the target update_translations a run of lupdate over SOURCES that merges new and
# changed texts into the .ts file. Locations are left out of the .ts, so that moving code changes
# nothing there; texts that the code no longer has are dropped.
function(zt_add_translation ts)
    cmake_parse_arguments(ARG "" "SOURCE_LANGUAGE" "SOURCES" ${ARGN})
    get_filename_component(name ${ts} NAME_WE)
    set(ts_path ${CMAKE_CURRENT_SOURCE_DIR}/${ts})
    set(qm ${ZT_TRANSLATIONS_BUILD_DIR}/${name}.qm)
    add_custom_command(OUTPUT ${qm}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${ZT_TRANSLATIONS_BUILD_DIR}
        COMMAND ${ZT_LRELEASE} -silent ${ts_path} -qm ${qm}
        DEPENDS ${ts_path}
        COMMENT "Compiling ${ts}"
        VERBATIM)
    add_custom_target(translation_${name} ALL DEPENDS ${qm})
    install(FILES ${qm} DESTINATION ${ZT_TRANSLATIONS_INSTALL_DIR})

    string(REGEX REPLACE "^.*_" "" target_language ${name})
    set(command ${ZT_LUPDATE} -silent -locations none -no-obsolete -source-language ${ARG_SOURCE_LANGUAGE}
        -target-language ${target_language} ${ARG_SOURCES} -ts ${ts_path})
    add_custom_target(update_translation_${name}
        COMMAND ${command}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        COMMENT "Updating ${ts} from the sources"
        VERBATIM)
    if(NOT TARGET update_translations)
        add_custom_target(update_translations)
    endif()
    add_dependencies(update_translations update_translation_${name})

    # A test that fails while the committed .ts lacks a text of the code or holds one untranslated.
    if(ZT_BUILD_TESTS)
        add_test(NAME translation_${name}_up_to_date
            COMMAND ${CMAKE_COMMAND} -DTS=${ts_path} -DWORK=${CMAKE_CURRENT_BINARY_DIR}/check-${name}
                    "-DLUPDATE=${command}" -P ${PROJECT_SOURCE_DIR}/cmake/ZTCheckTranslation.cmake
            WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    endif()
endfunction()
