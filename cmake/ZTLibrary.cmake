include(GenerateExportHeader)

# zt_add_library(<name> [FOLDERS dir ...] SOURCES ... [PUBLIC_LIBS ...] [PRIVATE_LIBS ...])
# A shared library whose headers are included by class name and whose public classes are exported
# through the generated <name>_export.h; everything else stays hidden. A library grown into
# FOLDERS (one per subsystem) has each folder on its include path, and its headers install flat.
# The private bodies (...Impl.h, ..._p.h) are never installed: they are the library's own.
# The library joins the export set ZTAPMTargets and is also reachable as ZTAPM::<name>, the name
# a client of the installed package uses, so in-tree and installed use read alike.
function(zt_add_library name)
    cmake_parse_arguments(ARG "" "" "FOLDERS;SOURCES;PUBLIC_LIBS;PRIVATE_LIBS" ${ARGN})
    add_library(${name} SHARED ${ARG_SOURCES})
    add_library(ZTAPM::${name} ALIAS ${name})
    string(TOLOWER ${name} lower)
    generate_export_header(${name} BASE_NAME ${name} EXPORT_FILE_NAME ${lower}_export.h)
    set(folders ${CMAKE_CURRENT_SOURCE_DIR})
    foreach(folder ${ARG_FOLDERS})
        list(APPEND folders ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    endforeach()
    foreach(folder ${folders})
        target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${folder}>)
    endforeach()
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${name}>)
    target_link_libraries(${name} PUBLIC ${ARG_PUBLIC_LIBS} PRIVATE ${ARG_PRIVATE_LIBS})
    # The headers use C++17; a client must compile with at least that.
    target_compile_features(${name} PUBLIC cxx_std_17)
    # Installed libraries find each other in their own directory, wherever the prefix is.
    set_target_properties(${name} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "$ORIGIN")
    set(headers)
    foreach(source ${ARG_SOURCES})
        if(source MATCHES "\\.h$" AND NOT source MATCHES "(Impl|_p)\\.h$")
            list(APPEND headers ${CMAKE_CURRENT_SOURCE_DIR}/${source})
        endif()
    endforeach()
    install(TARGETS ${name} EXPORT ZTAPMTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(FILES ${headers} ${CMAKE_CURRENT_BINARY_DIR}/${lower}_export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name})
endfunction()
