# zt_add_tests(<source.cpp> ... LINK_LIBRARIES ...)
# One Qt Test executable per source file, named after it, registered with CTest. Tests run
# offscreen and with settings redirected into the build tree, so they never touch the user's.
function(zt_add_tests)
    cmake_parse_arguments(ARG "" "" "LINK_LIBRARIES" ${ARGN})
    foreach(source ${ARG_UNPARSED_ARGUMENTS})
        get_filename_component(name ${source} NAME_WE)
        add_executable(${name} ${source})
        target_link_libraries(${name} PRIVATE Qt6::Test ${ARG_LINK_LIBRARIES})
        target_compile_definitions(${name} PRIVATE
            ZT_TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data"
            ZT_DEMO_DATA_DIR="${PROJECT_SOURCE_DIR}/data/demo")
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-config;ZTAPM_DATA_DIR=${PROJECT_SOURCE_DIR}/data/demo"
            TIMEOUT 300)
    endforeach()
endfunction()
