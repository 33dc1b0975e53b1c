#include "UiGraphicsXml.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <utility>

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
        return m_xml.hasError() ? LookOverrides() : m_overrides;
    }

private:
    /** An element that is still open; `list` is null for one whose text nobody wants. */
    struct OpenElement
    {
        QVector<LookOverride> *list;
        int index;
    };

    void startElement()
    {
        QVector<LookOverride> *list = listFor(m_xml.qualifiedName().toString());
        const QXmlStreamAttributes attributes = m_xml.attributes();
        if (list == nullptr || !attributes.hasAttribute(QStringLiteral("Name"))) {
            m_open.append({nullptr, 0});
            return;
        }
        // Listed when it opens: document order is the order of the start tags.
        m_open.append({list, static_cast<int>(list->size())});
        list->append({attributes.value(QStringLiteral("Name")).toString(), QString()});
        ++m_wanted;
    }

    void endElement()
    {
        const OpenElement element = m_open.takeLast();
        if (element.list == nullptr)
            return;
        QString &text = (*element.list)[element.index].text;
        text = text.trimmed();
        --m_wanted;
    }

    // The text of an element is all the text below it, its child elements' included. No colour and no family is longer
    // than the limit, and without one a few nested elements would multiply a long text.
    void addText()
    {
        if (m_wanted == 0)
            return;
        for (const OpenElement &element : std::as_const(m_open))
            if (element.list != nullptr)
                append((*element.list)[element.index].text, m_xml.text().toString());
    }

    static void append(QString &text, const QString &more)
    {
        constexpr int longestText = 256;
        if (text.size() < longestText)
            text = (text + more.left(longestText)).left(longestText);
        // So that white space before the text does not use the limit up.
        if (!text.isEmpty() && text.front().isSpace())
            text = text.trimmed();
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
    int m_wanted = 0;
};

} // namespace

LookOverrides readLookOverrides(const QString &path)
{
    // Only a file: opening a pipe would wait for its writer.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return LookOverrides();
    return LookXmlReader(&file).read();
}
