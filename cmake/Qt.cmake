# The chosen Qt and the rules that its use in this project follows.

if(NOT ZEL_QT_MAJOR MATCHES "^[56]$")
    message(FATAL_ERROR "ZEL_QT_MAJOR is '${ZEL_QT_MAJOR}'. Give 5 or 6, for instance: cmake --preset qt5")
endif()
set(ZEL_QT_MINIMUM_5 5.15)
set(ZEL_QT_MINIMUM_6 6.4)
set(ZEL_QT_MINIMUM ${ZEL_QT_MINIMUM_${ZEL_QT_MAJOR}})
find_package(Qt${ZEL_QT_MAJOR} ${ZEL_QT_MINIMUM} REQUIRED COMPONENTS Core Gui Widgets)
if(BUILD_TESTING)
    find_package(Qt${ZEL_QT_MAJOR} REQUIRED COMPONENTS Test)
endif()

# Two builds of this library, one per Qt major, live side by side: everything that a packager sees carries the major.
set(ZEL_QT_SUFFIX Qt${ZEL_QT_MAJOR})

add_library(zel_qt_rules INTERFACE)
target_compile_definitions(zel_qt_rules INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_FOREACH
    QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS QT_DEPRECATED_WARNINGS)
