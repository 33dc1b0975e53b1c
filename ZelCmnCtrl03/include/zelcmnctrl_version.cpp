#include "include/zelcmnctrl_version.h"

const char *zel::version()
{
    return ZELCMNCTRL_VERSION_STR;
}
