/* A utility library that lacks an entry point: PROVIDE_LANGUAGE or PROVIDE_PATH says which one is there. */
#include <uchar.h>

static const char16_t language[] = u"ja";
static const char16_t nothing[] = u"";

#ifdef PROVIDE_LANGUAGE
const char16_t *GetLanguage(void)
{
    (void)nothing;
    return language;
}
#endif

#ifdef PROVIDE_PATH
void RetrievePath(const char16_t *key, const char16_t **value, int reserved)
{
    (void)key;
    (void)reserved;
    (void)language;
    *value = nothing;
}
#endif
