#include "SheetHtml.h"

#include "Findings.h"

#include <QFile>
#include <QIODevice>

#include <algorithm>

namespace lookcheck {

namespace {

// Text 4.5 to 1 and better, light and dark. The pictures keep a white ground: the controls are made for one.
const char pageHead[] = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>%1</title>
<style>
:root { color-scheme: light dark; --line: #8888; --focus: #0065b1; }
@media (prefers-color-scheme: dark) { :root { --focus: #8cc8ff; } }
body { font: 16px/1.5 system-ui, sans-serif; max-width: 70rem; margin: 0 auto; padding: 1rem; }
h1 { line-height: 1.2; overflow-wrap: anywhere; }
:focus-visible { outline: 3px solid var(--focus); outline-offset: 2px; }
.skip { position: absolute; left: -100rem; }
.skip:focus { position: static; }
.pair { border-top: 1px solid var(--line); padding: .75rem 0; }
.pair h3 { font-size: 1rem; margin: 0 0 .25rem; overflow-wrap: anywhere; }
.looks { display: flex; flex-wrap: wrap; gap: 1.5rem; margin: 0; }
figure { margin: 0; overflow: auto; max-width: 100%; }
figcaption { font-size: .875rem; }
img { background: #fff; border: 1px solid var(--line); display: block; }
#large:checked ~ main img { zoom: 3; image-rendering: pixelated; border-width: 0; }
summary { cursor: pointer; font-size: 1.25rem; font-weight: bold; padding: .25rem 0; }
</style>
</head>
<body>
<a class="skip" href="#changed">Skip to the changed specimens</a>
<h1>%1</h1>
<p>%2</p>
<input type="checkbox" id="large"> <label for="large">Three times as large</label>
<main>
<h2 id="changed" tabindex="-1">Changed</h2>
)";

QString plural(int count)
{
    return count == 1 ? QString() : QStringLiteral("s");
}

// "buttons-states-normal-pressed" as the gallery names its files.
QString captionOf(const QString &name)
{
    QString caption = name;
    caption.replace(QLatin1Char('-'), QLatin1Char(' '));
    caption.replace(0, 1, caption.left(1).toUpper());
    return caption.toHtmlEscaped();
}

QByteArray imageElement(const QString &path, const QString &alternative)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return QByteArrayLiteral("<p>No picture.</p>");
    return "<img alt=\"" + alternative.toUtf8() + "\" src=\"data:image/png;base64," + file.readAll().toBase64() + "\">";
}

QByteArray figure(const QString &path, const QString &caption, const QString &specimen)
{
    return "<figure><figcaption>" + caption.toUtf8() + "</figcaption>" +
           imageElement(path, specimen + QStringLiteral(", ") + caption.toLower()) + "</figure>\n";
}

class SheetWriter
{
public:
    explicit SheetWriter(QIODevice *device) : m_device(device) {}

    bool write(const QString &directory, const QVector<PicturePair> &pairs)
    {
        const int changed = static_cast<int>(
            std::count_if(pairs.cbegin(), pairs.cend(), [](const PicturePair &pair) { return pair.differs; }));
        const int unchanged = static_cast<int>(pairs.size()) - changed;
        const QString title = QStringLiteral("The look of %1").arg(harmless(directory)).toHtmlEscaped();
        const QString counts = QStringLiteral("%1 specimen%2 changed, %3 as in the built-in look.")
                                   .arg(QString::number(changed), plural(changed), QString::number(unchanged));
        QString head = QString::fromUtf8(pageHead);
        put(head.replace(QLatin1String("%2"), counts).replace(QLatin1String("%1"), title).toUtf8());
        if (changed == 0)
            put("<p>Nothing: this look draws every specimen as the built-in look does.</p>\n");
        for (const PicturePair &pair : pairs)
            if (pair.differs)
                putChanged(pair);
        putUnchanged(pairs, unchanged);
        put("</main>\n</body>\n</html>\n");
        return m_isWritten;
    }

private:
    void putChanged(const PicturePair &pair)
    {
        const QString caption = captionOf(pair.name);
        put("<section class=\"pair\"><h3>" + caption.toUtf8() + "</h3>\n<div class=\"looks\">\n");
        put(figure(pair.before, QStringLiteral("Before"), caption));
        put(figure(pair.after, QStringLiteral("After"), caption));
        put("</div></section>\n");
    }

    void putUnchanged(const QVector<PicturePair> &pairs, int count)
    {
        if (count == 0)
            return;
        put("<details><summary>Unchanged (" + QByteArray::number(count) + ")</summary>\n");
        for (const PicturePair &pair : pairs)
            if (!pair.differs)
                put("<section class=\"pair\"><h3>" + captionOf(pair.name).toUtf8() + "</h3>\n" +
                    imageElement(pair.after, captionOf(pair.name)) + "</section>\n");
        put("</details>\n");
    }

    void put(const QByteArray &text) { m_isWritten = m_isWritten && m_device->write(text) == text.size(); }

    QIODevice *m_device;
    bool m_isWritten = true;
};

} // namespace

bool writeSheetHtml(QIODevice *device, const QString &directory, const QVector<PicturePair> &pairs)
{
    return SheetWriter(device).write(directory, pairs);
}

} // namespace lookcheck
