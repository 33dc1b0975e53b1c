// What leaves the shared library: ZELCMNCTRL_EXPORT marks the public classes.
#pragma once

#include <QtGlobal>

#if defined(ZELCMNCTRL_BUILD)
#define ZELCMNCTRL_EXPORT Q_DECL_EXPORT
#else
#define ZELCMNCTRL_EXPORT Q_DECL_IMPORT
#endif
