#pragma once

#include "ZelCUtilExport.h"

/**
 * @file
 * User interface language and installation settings.
 *
 * Both functions have C linkage because their callers look them up by name in the loaded library. They may be called
 * from any thread and at any time, before main() and during exit included. They keep errno and never throw.
 */
extern "C" {

/**
 * Language of the user interface, for the choice of texts and fonts.
 *
 * Decided at the first call and fixed from then on: the environment variable ZEL_LANGUAGE, else the setting
 * Language of section [Installation], else the locale of the process.
 *
 * @return A tag such as u"ja", u"pt-br" or u"zh-chs"; never null. Owned by the library, valid to the end of the
 *         process. u"en" when nothing names a language.
 */
ZELCUTIL03_EXPORT const char16_t *GetLanguage() noexcept;

/**
 * Text of an installation setting, usually a folder.
 *
 * @p key is looked up without regard to the case of ASCII letters in section [Installation] of zelcutil03.ini: the
 * user's file first, then those of the system; the first file that has the key wins. A leading "~/" stands for the
 * home folder. CommonGraphicsDir is special: ZEL_GRAPHICS_DIR comes before the files, and without any of them the
 * artwork installed beside this library is given. A CommonGraphicsDir that is present but empty means no artwork.
 *
 * @param key      Name of the setting, zero-terminated. Null asks for a setting that does not exist.
 * @param value    Receives the text: owned by the library, valid to the end of the process, empty when the setting
 *                 does not exist. May be null; the call then has no effect.
 * @param reserved Not evaluated; pass 0.
 */
ZELCUTIL03_EXPORT void RetrievePath(const char16_t *key, const char16_t **value, int reserved) noexcept;
}
