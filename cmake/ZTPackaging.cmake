# The installed package, consumed the way Qt and KDE libraries are: find_package(ZTAPM) gives the
# imported targets ZTAPM::<library>, and every library has a pkg-config file named after it in
# lower case (ztapm.pc, ztcore.pc, ...).
include(CMakePackageConfigHelpers)

set(ZT_CMAKE_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZTAPM)
install(EXPORT ZTAPMTargets NAMESPACE ZTAPM:: DESTINATION ${ZT_CMAKE_INSTALL_DIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ZTAPMConfig.cmake.in
    ${CMAKE_BINARY_DIR}/ZTAPMConfig.cmake
    INSTALL_DESTINATION ${ZT_CMAKE_INSTALL_DIR})
# A 0.x release promises nothing to 1.x; within one major version a newer package serves.
write_basic_package_version_file(${CMAKE_BINARY_DIR}/ZTAPMConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/ZTAPMConfig.cmake ${CMAKE_BINARY_DIR}/ZTAPMConfigVersion.cmake
    DESTINATION ${ZT_CMAKE_INSTALL_DIR})

# The .pc files find the prefix from their own place, so they stay right under
# cmake --install --prefix.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(ZT_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
    file(RELATIVE_PATH up "/root/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/root")
    string(REGEX REPLACE "/$" "" up "${up}")
    set(ZT_PC_PREFIX "\${pcfiledir}/${up}")
endif()

# zt_install_pkgconfig(<library> <description>)
# The Requires line follows the library's public link interface: Qt6::Xml becomes Qt6Xml, a
# library of this project its lower-case name.
function(zt_install_pkgconfig library description)
    set(ZT_PC_NAME ${library})
    set(ZT_PC_DESCRIPTION "${description}")
    get_target_property(interface ${library} INTERFACE_LINK_LIBRARIES)
    set(requires)
    foreach(dependency ${interface})
        if(dependency MATCHES "^Qt6::(.+)$")
            list(APPEND requires Qt6${CMAKE_MATCH_1})
        elseif(TARGET ${dependency})
            string(TOLOWER ${dependency} lower)
            list(APPEND requires ${lower})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES requires)
    string(REPLACE ";" " " ZT_PC_REQUIRES "${requires}")
    get_target_property(type ${library} TYPE)
    if(type STREQUAL "INTERFACE_LIBRARY")
        set(ZT_PC_LIBS "")
    else()
        set(ZT_PC_LIBS "-L\${libdir} -l${library}")
    endif()
    string(TOLOWER ${library} lower)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/ztlibrary.pc.in ${CMAKE_BINARY_DIR}/pkgconfig/${lower}.pc @ONLY)
    install(FILES ${CMAKE_BINARY_DIR}/pkgconfig/${lower}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

zt_install_pkgconfig(ZTTemplateClasses "ZTAPM host platform: keyword tables and set templates")
zt_install_pkgconfig(ZTCore "ZTAPM host platform: singletons, settings, resource files and key accounts")
zt_install_pkgconfig(ZTXML "ZTAPM host platform: document loading and attribute parsing")
zt_install_pkgconfig(ZTProductBase "ZTAPM host platform: article ids, classes, vocabulary and page geometry")
zt_install_pkgconfig(ZTAPM "Article, price and order-calculation engine for printed photo products")
