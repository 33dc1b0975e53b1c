#include "UiGraphicsXml.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

constexpr int mostOthers = 1000;
constexpr qint64 longestDeclaration = 200; // bytes; "<?xml ...?>" takes some 60

class LookXmlReader
{
public:
    // No text that counts is longer than an entity may be. Of a longer one a few thousand mentions fill the memory.
    explicit LookXmlReader(QIODevice *device) : m_xml(device) { m_xml.setEntityExpansionLimit(longestOverrideText); }

    LookOverrides read()
    {
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement: startElement(); break;
            case QXmlStreamReader::EndElement: endElement(); break;
            case QXmlStreamReader::Characters: addText(); break;
            default: break;
            }
        }
        return m_xml.hasError() ? failed() : m_overrides;
    }

private:
    /** An element whose text is wanted and that is still open. */
    struct OpenElement
    {
        QVector<LookOverride> *list;
        int index;
        int depth;
        bool startsWithSpace;
    };

    LookOverrides failed() const
    {
        LookOverrides nothing;
        nothing.fault = LookFileFault::NotWellFormed;
        nothing.error = m_xml.errorString();
        nothing.errorLine = line();
        return nothing;
    }

    int line() const { return static_cast<int>(m_xml.lineNumber()); }

    void startElement()
    {
        ++m_depth;
        if (m_isInOther)
            m_overrides.others.last().isLeaf = false;
        m_isInOther = false;
        QVector<LookOverride> *list = listFor(m_xml.qualifiedName().toString());
        if (list == nullptr) {
            addOther();
            return;
        }
        const QXmlStreamAttributes attributes = m_xml.attributes();
        if (!attributes.hasAttribute(QStringLiteral("Name"))) {
            m_overrides.namelessLines.append(line());
            return;
        }
        // Listed when it opens: document order is the order of the start tags.
        m_open.append({list, static_cast<int>(list->size()), m_depth, false});
        list->append({attributes.value(QStringLiteral("Name")).toString(), QString(), line(), false});
    }

    // The text of an element is all the text below it, its child elements' included.
    void endElement()
    {
        const bool isWanted = !m_open.isEmpty() && m_open.constLast().depth == m_depth;
        --m_depth;
        m_isInOther = false;
        if (!isWanted)
            return;
        const OpenElement element = m_open.takeLast();
        LookOverride &ended = (*element.list)[element.index];
        if (!m_open.isEmpty()) {
            append(element.startsWithSpace ? QLatin1Char(' ') + ended.text : ended.text);
            LookOverride &outer = (*m_open.constLast().list)[m_open.constLast().index];
            outer.hasMore = outer.hasMore || ended.hasMore;
        }
        ended.text = ended.text.trimmed();
    }

    void addOther()
    {
        if (m_overrides.others.size() >= mostOthers)
            return;
        OtherElement other{m_xml.qualifiedName().toString(), QString(), line(), true};
        for (const QXmlStreamAttribute &attribute : m_xml.attributes())
            if (attribute.name().compare(QLatin1String("Name"), Qt::CaseInsensitive) == 0)
                other.name = attribute.value().toString();
        m_overrides.others.append(other);
        m_isInOther = true;
    }

    void addText()
    {
        if (!m_open.isEmpty())
            append(m_xml.text().toString());
    }

    // To the innermost element; its end hands the text on. A document of many nested elements would otherwise cost the
    // square of its length.
    void append(const QString &more)
    {
        OpenElement &element = m_open.last();
        LookOverride &override = (*element.list)[element.index];
        int start = 0;
        if (override.text.isEmpty()) // white space before the text does not use the limit up
            while (start < more.size() && more.at(start).isSpace())
                ++start;
        element.startsWithSpace = element.startsWithSpace || start > 0;
        const int room = longestOverrideText - static_cast<int>(override.text.size());
        override.text += more.mid(start, room);
        override.hasMore = override.hasMore || !more.mid(start + room).trimmed().isEmpty();
    }

    QVector<LookOverride> *listFor(const QString &elementName)
    {
        if (elementName == QLatin1String("Color"))
            return &m_overrides.colors;
        return elementName == QLatin1String("Font") ? &m_overrides.fonts : nullptr;
    }

    QXmlStreamReader m_xml;
    QVector<OpenElement> m_open;
    LookOverrides m_overrides;
    int m_depth = 0;
    bool m_isInOther = false; // directly in the last of the other elements
};

// Qt tells of a wrong letter where it began to read the piece that holds it, which is the first line as a rule.
int lineOfBadUtf8(QIODevice *device)
{
    constexpr qint64 longestLine = qint64(1024) * 1024; // what is longer is left to Qt's own telling
    constexpr char replacement[] = "\xEF\xBF\xBD";
    device->seek(0);
    for (int line = 1; !device->atEnd(); ++line) {
        const QByteArray bytes = device->readLine(longestLine);
        if (bytes.size() >= longestLine - 1)
            return 0;
        if (!bytes.contains(replacement) && QString::fromUtf8(bytes).contains(QChar::ReplacementCharacter))
            return line;
    }
    return 0;
}

// A file in another encoding fails as one that is not well-formed; its author sees a well-formed one.
LookOverrides withEncodingTold(LookOverrides overrides, QIODevice *device)
{
    device->seek(0);
    const QByteArray declaration = device->read(longestDeclaration);
    const bool isUtf8 = !declaration.contains("encoding") && !declaration.contains('\0');
    const int line = isUtf8 ? lineOfBadUtf8(device) : 0;
    if (line == 0)
        return overrides;
    overrides.fault = LookFileFault::Encoding;
    overrides.error = QStringLiteral("A letter is not in UTF-8, and the file declares no other encoding.");
    overrides.errorLine = line;
    return overrides;
}

LookOverrides nothingOf(LookFileFault fault, const QString &error)
{
    LookOverrides nothing;
    nothing.fault = fault;
    nothing.error = error;
    return nothing;
}

} // namespace

LookOverrides readLookOverrides(const QString &path)
{
    // Only a file: opening a pipe would wait for its writer.
    QFile file(path);
    const QFileInfo info(path);
    if (!info.isFile())
        return nothingOf(LookFileFault::Unreadable, QStringLiteral("This is no file."));
    if (info.size() > largestOverridesFile)
        return nothingOf(LookFileFault::TooLarge,
                         QStringLiteral("The file is larger than a megabyte and was not read."));
    if (!file.open(QIODevice::ReadOnly))
        return nothingOf(LookFileFault::Unreadable, file.errorString());
    return readLookOverrides(&file);
}

LookOverrides readLookOverrides(QIODevice *document)
{
    const LookOverrides overrides = LookXmlReader(document).read();
    return overrides.fault == LookFileFault::None ? overrides : withEncodingTold(overrides, document);
}
