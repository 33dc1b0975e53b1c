// Loaded before Qt, so that Qt seems to be another version than the one that was built with.
__attribute__((visibility("default"))) const char *qVersion(void);

const char *qVersion(void)
{
    return "9.8.7";
}
