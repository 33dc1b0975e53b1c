// UIGraphics.xml: any bytes as the document.
#include "UiGraphicsXml.h"
#include "fuzz/Require.h"

#include <QBuffer>
#include <QByteArray>

namespace {

void checkOverrides(const QVector<LookOverride> &overrides)
{
    int previousLine = 1;
    for (const LookOverride &override : overrides) {
        FUZZ_REQUIRE(override.text.size() <= longestOverrideText);
        FUZZ_REQUIRE(override.text == override.text.trimmed());
        FUZZ_REQUIRE(override.line >= previousLine);
        previousLine = override.line;
        bool isNumber = false;
        const quint32 value = colorValue(override.text, &isNumber);
        FUZZ_REQUIRE(isNumber || value == 0);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    QBuffer document(&bytes);
    document.open(QIODevice::ReadOnly);
    const LookOverrides overrides = readLookOverrides(&document);
    checkOverrides(overrides.colors);
    checkOverrides(overrides.fonts);
    // All or nothing: a file that breaks off must not leave half a look.
    if (!overrides.error.isEmpty())
        FUZZ_REQUIRE(overrides.colors.isEmpty() && overrides.fonts.isEmpty() && overrides.namelessLines.isEmpty());
    return 0;
}
