# What `cmake --install` puts where. The prefix may be moved afterwards: nothing installed knows its own place but by
# what lies beside it. Qt 5 and Qt 6 builds go into one prefix side by side.

include(CMakePackageConfigHelpers)

set(package ZelCmnCtrl03${ZEL_QT_SUFFIX})
set(package_include ${CMAKE_INSTALL_INCLUDEDIR}/${package})
set(library_cmake ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
set(utility_cmake ${CMAKE_INSTALL_LIBDIR}/cmake/ZelCUtil03)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# From the folder of the .pc files back to the prefix.
file(RELATIVE_PATH prefix_from_pkgconfig ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig "${prefix_from_pkgconfig}")

# Libraries

install(TARGETS ZelCUtil03 EXPORT ZelCUtil03Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT utility
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT utility_dev
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT utility)
install(TARGETS ZelCmnCtrl03 EXPORT ${package}Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
    INCLUDES DESTINATION ${package_include} ${package_include}/ZelCmnCtrl03)

# Headers: <ZelCmnCtrl03/CButtonEx> and what those include.

install(DIRECTORY ZelCUtil03/include/ZelCUtil03 DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT utility_dev
    FILES_MATCHING PATTERN "*.h")
get_property(public_headers GLOBAL PROPERTY ZEL_PUBLIC_HEADERS)
foreach(header IN LISTS public_headers)
    if(NOT EXISTS ${PROJECT_SOURCE_DIR}/ZelCmnCtrl03/${header})
        continue() # made by the build, and installed with the forwarding headers
    endif()
    cmake_path(GET header PARENT_PATH folder)
    install(FILES ZelCmnCtrl03/${header} DESTINATION ${package_include}/ZelCmnCtrl03/${folder} COMPONENT development)
endforeach()
install(DIRECTORY ${PROJECT_BINARY_DIR}/include/${package}/ DESTINATION ${package_include} COMPONENT development)

# Manual pages: zel_install_manual(PROGRAM COMPONENT). Debian wants them compressed.

function(zel_install_manual program component)
    set(page ${PROJECT_BINARY_DIR}/man/${program}.1)
    configure_file(${PROJECT_SOURCE_DIR}/docs/man/${program}.1.in ${page} @ONLY)
    if(ZEL_PACKAGE)
        find_program(ZEL_GZIP gzip REQUIRED)
        execute_process(COMMAND ${ZEL_GZIP} -9nkf ${page} COMMAND_ERROR_IS_FATAL ANY)
        string(APPEND page .gz)
    endif()
    install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
endfunction()
zel_install_manual(lookcheck tools)
if(ZEL_BUILD_EXAMPLES)
    zel_install_manual(zel_gallery gallery)
endif()

# CMake packages

install(EXPORT ZelCUtil03Targets NAMESPACE Zel:: DESTINATION ${utility_cmake} COMPONENT utility_dev)
install(EXPORT ${package}Targets NAMESPACE Zel:: DESTINATION ${library_cmake} COMPONENT development)

function(zel_package_config template name destination component)
    set(config ${PROJECT_BINARY_DIR}/cmake/${name}Config.cmake)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${template} ${config} INSTALL_DESTINATION ${destination}
        NO_SET_AND_CHECK_MACRO)
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/cmake/${name}ConfigVersion.cmake
        VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
    install(FILES ${config} ${PROJECT_BINARY_DIR}/cmake/${name}ConfigVersion.cmake DESTINATION ${destination}
        COMPONENT ${component})
endfunction()
zel_package_config(ZelCUtil03Config.cmake.in ZelCUtil03 ${utility_cmake} utility_dev)
zel_package_config(ZelCmnCtrl03Config.cmake.in ${package} ${library_cmake} development)

# pkg-config

configure_file(cmake/zelcutil03.pc.in ${PROJECT_BINARY_DIR}/cmake/zelcutil03.pc @ONLY)
configure_file(cmake/zelcmnctrl03.pc.in ${PROJECT_BINARY_DIR}/cmake/zelcmnctrl03-qt${ZEL_QT_MAJOR}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/cmake/zelcutil03.pc DESTINATION ${pkgconfig_dir} COMPONENT utility_dev)
install(FILES ${PROJECT_BINARY_DIR}/cmake/zelcmnctrl03-qt${ZEL_QT_MAJOR}.pc DESTINATION ${pkgconfig_dir}
    COMPONENT development)
