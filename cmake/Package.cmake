# Debian packages, one per component. `./dev package` makes them from two builds; what does not depend on the major
# version of Qt comes from the one with ZEL_PACKAGE_SHARED.

set(revision 1)
set(exactly "(= ${PROJECT_VERSION}-${revision})")
set(qt qt${ZEL_QT_MAJOR})
set(zel_packages)

# What a name stands for is said in every description.
string(JOIN "\n" library_text "Push buttons, sliders, progress widgets and other controls that draw in one"
    "house look, and that look as a style for the widgets of Qt. Colours, fonts and"
    "bitmaps of the look can be replaced.")

# package(COMPONENT NAME SECTION SYNOPSIS CONTENT [DEPENDENCY]...)
function(package component name section synopsis content)
    get_cmake_property(components COMPONENTS)
    if(NOT component IN_LIST components)
        return()
    endif()
    string(TOUPPER ${component} id)
    string(JOIN ", " depends ${ARGN})
    set(zel_packages ${zel_packages} ${component} PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_DESCRIPTION "${synopsis}\n${library_text}\n.\nThis package has ${content}." PARENT_SCOPE)
    install(FILES ${PROJECT_BINARY_DIR}/debian/copyright ${PROJECT_BINARY_DIR}/debian/changelog.gz
        ${PROJECT_BINARY_DIR}/debian/changelog.Debian.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
        COMPONENT ${component})
endfunction()

set(runtime libzelcmnctrl03${qt}-${PROJECT_VERSION_MAJOR}) # after the SONAME
set(qt_development_5 qtbase5-dev)
set(qt_development_6 qt6-base-dev)
package(library ${runtime} libs "controls and style of the house for Qt ${ZEL_QT_MAJOR}"
    "the library that applications run with"
    "libzelcutil03 ${exactly}" "zelcmnctrl03-data ${exactly}")
package(development libzelcmnctrl03${qt}-dev libdevel
    "controls and style of the house for Qt ${ZEL_QT_MAJOR} - development files"
    "what applications are built with"
    "${runtime} ${exactly}" "libzelcutil03-dev ${exactly}" "${qt_development_${ZEL_QT_MAJOR}} (>= ${ZEL_QT_MINIMUM})")
package(style ${qt}-style-plugin-zelcc4 libs "style of the house for any Qt ${ZEL_QT_MAJOR} application"
    "the plugin, for applications started with -style cc4"
    "${runtime} ${exactly}")
if(TARGET zelcmnctrl03designer)
    package(designer ${qt}-designer-plugin-zelcmnctrl03 libdevel "controls of the house in Qt Designer ${ZEL_QT_MAJOR}"
        "the plugin, which adds them to the widget box"
        "${runtime} ${exactly}")
endif()
if(ZEL_PACKAGE_SHARED)
    package(utility libzelcutil03 libs "log, language and installation settings of the house"
        "the utility library, which has no Qt in it")
    package(utility_dev libzelcutil03-dev libdevel
        "log, language and installation settings of the house - development files"
        "what users of the utility library are built with"
        "libzelcutil03 ${exactly}")
    package(data zelcmnctrl03-data misc "artwork and catalogues of the house's controls"
        "what the libraries for all versions of Qt share")
    package(gallery zelcmnctrl03-gallery devel "gallery of the house's controls"
        "a program that shows every control in every state" "${runtime} ${exactly}")
    package(tools zelcmnctrl03-tools devel "tools for deployers of the house's look"
        "programs that check a look of one's own")
endif()

# Documents of every package

find_program(ZEL_GZIP gzip REQUIRED)
set(ZEL_PACKAGE_MAINTAINER "ZelCmnCtrl03 maintainers <maintainers@zelcmnctrl03.example>" CACHE STRING
    "Name and address of who answers for the packages")
string(TIMESTAMP package_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(cmake/debian/copyright ${PROJECT_BINARY_DIR}/debian/copyright COPYONLY)
configure_file(cmake/debian/changelog.in ${PROJECT_BINARY_DIR}/debian/changelog.Debian @ONLY)
configure_file(CHANGELOG.md ${PROJECT_BINARY_DIR}/debian/changelog COPYONLY)
execute_process(COMMAND ${ZEL_GZIP} -9nf changelog changelog.Debian WORKING_DIRECTORY ${PROJECT_BINARY_DIR}/debian
    COMMAND_ERROR_IS_FATAL ANY)

# The dynamic loader learns of new libraries, and packages of applications of the package that they depend on. The
# utility library has no version in its name, and so no line for those.
set(control_files ${PROJECT_BINARY_DIR}/debian)
file(WRITE ${control_files}/triggers "activate-noawait ldconfig\n")
file(WRITE ${control_files}/shlibs
    "libZelCmnCtrl03${ZEL_QT_SUFFIX} ${PROJECT_VERSION_MAJOR} ${runtime} (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_UTILITY_PACKAGE_CONTROL_EXTRA ${control_files}/triggers)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${control_files}/triggers ${control_files}/shlibs)
if(ZEL_QT_MAJOR EQUAL 5)
    set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS qt5-style-plugin-plastique) # the base of the house style
endif()
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS zelcmnctrl03-gallery) # makes the pictures of lookcheck --sheet
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS zelcmnctrl03-tools) # lookcheck, which zel_add_look_check runs
set(CPACK_DEBIAN_DATA_PACKAGE_ARCHITECTURE all)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_COMPONENTS_ALL ${zel_packages})
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
    WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${revision})
set(CPACK_DEBIAN_PACKAGE_SOURCE zelcmnctrl03)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${ZEL_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
include(CPack)
