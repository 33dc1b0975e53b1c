#include "UiGraphicsXml.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

class LookXmlReader
{
public:
    explicit LookXmlReader(QIODevice *device) : m_xml(device) {}

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
        nothing.error = m_xml.errorString();
        nothing.errorLine = line();
        return nothing;
    }

    int line() const { return static_cast<int>(m_xml.lineNumber()); }

    void startElement()
    {
        ++m_depth;
        QVector<LookOverride> *list = listFor(m_xml.qualifiedName().toString());
        if (list == nullptr)
            return;
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
};

} // namespace

LookOverrides readLookOverrides(const QString &path)
{
    // Only a file: opening a pipe would wait for its writer.
    QFile file(path);
    LookOverrides nothing;
    if (!QFileInfo(path).isFile())
        nothing.error = QStringLiteral("This is no file.");
    else if (!file.open(QIODevice::ReadOnly))
        nothing.error = file.errorString();
    return nothing.error.isEmpty() ? readLookOverrides(&file) : nothing;
}

LookOverrides readLookOverrides(QIODevice *document)
{
    return LookXmlReader(document).read();
}
