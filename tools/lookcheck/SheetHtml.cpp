#include "SheetHtml.h"

#include "Findings.h"

#include <QFile>
#include <QFileInfo>
#include <QIODevice>

#include <algorithm>
#include <utility>

namespace lookcheck {

namespace {

// Text 4.5 to 1 and better, light and dark. The pictures keep a white ground: the controls are made for one. --w is the
// width of a specimen in pixels and --z its enlargement; before and after stay side by side, and shrink where the
// window has no room for both.
const char pageHead[] = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>%1: before and after</title>
<style>
:root { color-scheme: light dark; --line: #8886; --card: #f4f5f7; --accent: #0065b1; --z: 1; }
@media (prefers-color-scheme: dark) { :root { --card: #24262a; --accent: #8cc8ff; } }
* { box-sizing: border-box; }
html { scroll-padding-top: 4rem; }
body { font: 16px/1.45 system-ui, sans-serif; margin: 0 auto; max-width: 120rem; padding: 1rem clamp(1rem, 3vw, 3rem); }
h1 { font-size: 1.75rem; line-height: 1.2; margin: 0 0 .25rem; }
h2 { font-size: 1.375rem; margin: 2.5rem 0 0; padding-top: .5rem; border-top: 2px solid var(--accent); }
h3 { font-size: 1rem; margin: 1.25rem 0 .5rem; }
h2 small, h3 small { font-weight: normal; font-size: .875rem; }
p { margin: .25rem 0; }
code { overflow-wrap: anywhere; }
a { color: var(--accent); }
:focus-visible { outline: 3px solid var(--accent); outline-offset: 2px; }
.skip { position: absolute; left: -100rem; }
.skip:focus { position: static; }
.fault { border-inline-start: .375rem solid #c42b1c; background: var(--card); padding: .75rem 1rem; margin: 1rem 0; }
.sizes { position: sticky; top: 0; z-index: 1; background: Canvas; border-bottom: 1px solid var(--line);
  display: flex; flex-wrap: wrap; gap: .25rem 1.25rem; padding: .75rem 0; }
.index { columns: 14rem; column-gap: 2rem; padding: 0; margin: 1rem 0 0; list-style: none; }
.index li { break-inside: avoid; padding: .125rem 0; }
.cards { display: flex; flex-wrap: wrap; align-items: flex-start; gap: .75rem; }
.pair, .single { background: var(--card); border: 1px solid var(--line); border-radius: .375rem; padding: .5rem .75rem .75rem;
  max-width: 100%; }
.pair { width: max(13rem, calc(var(--w) * var(--z) * 2px + 2.75rem)); }
.single { width: max(9rem, calc(var(--w) * 1px + 1.75rem)); }
.pair h4, .single h4 { font-size: .875rem; font-weight: 600; margin: 0 0 .25rem; overflow-wrap: anywhere; }
.single h4 { font-weight: normal; }
.looks { display: grid; grid-template-columns: minmax(0, 1fr) minmax(0, 1fr); gap: .75rem; }
figure { margin: 0; min-width: 0; }
figcaption, .note { font-size: .8125rem; }
img { background: #fff; outline: 1px solid var(--line); display: block; height: auto; max-width: 100%;
  width: calc(var(--w) * var(--z) * 1px); }
.single img { width: calc(var(--w) * 1px); }
#x2:checked ~ main { --z: 2; }
#x3:checked ~ main { --z: 3; }
#x2:checked ~ main .pair img, #x3:checked ~ main .pair img { image-rendering: pixelated; }
.choice { position: absolute; opacity: 0; }
.sizes label { cursor: pointer; padding: 0 .5rem; border-radius: .25rem; }
#x1:checked ~ .sizes [for=x1], #x2:checked ~ .sizes [for=x2], #x3:checked ~ .sizes [for=x3] {
  background: var(--accent); color: Canvas; }
#x1:focus-visible ~ .sizes [for=x1], #x2:focus-visible ~ .sizes [for=x2], #x3:focus-visible ~ .sizes [for=x3] {
  outline: 3px solid var(--accent); outline-offset: 2px; }
summary { cursor: pointer; padding: .5rem 0; }
</style>
</head>
<body>
<a class="skip" href="#changed">Skip to the changed specimens</a>
<h1>Before and after</h1>
<p>Before: the built-in look. After: <code>%2</code></p>
<p>%3</p>
)";

const char sizeChoice[] = R"(<input class="choice" type="radio" name="size" id="x1" checked>
<input class="choice" type="radio" name="size" id="x2">
<input class="choice" type="radio" name="size" id="x3">
<div class="sizes"><span>Size:</span><label for="x1">1 to 1</label><label for="x2">2 times</label><label for="x3">3 times</label></div>
<main>
<div id="changed" tabindex="-1"></div>
)";

/** Pairs of one page of the gallery. */
struct SheetPage
{
    QString title;
    QVector<PicturePair> changed;
    QVector<PicturePair> unchanged;
};

QVector<SheetPage> pagesOf(const QVector<PicturePair> &pairs)
{
    QVector<SheetPage> pages;
    for (const PicturePair &pair : pairs) {
        if (pages.isEmpty() || pages.constLast().title != pair.page)
            pages.append({pair.page, {}, {}});
        (pair.difference == Difference::None ? pages.last().unchanged : pages.last().changed).append(pair);
    }
    return pages;
}

QByteArray escaped(const QString &text)
{
    return text.toHtmlEscaped().toUtf8();
}

QByteArray imageElement(const QString &path, const QString &alternative)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return QByteArrayLiteral("<p class=\"note\">No picture.</p>");
    return "<img alt=\"" + escaped(alternative) + "\" src=\"data:image/png;base64," + file.readAll().toBase64() + "\">";
}

QByteArray figure(const QString &path, const QString &caption, const QString &specimen)
{
    return "<figure><figcaption>" + escaped(caption) + "</figcaption>" +
           imageElement(path, QStringLiteral("%1, %2").arg(specimen, caption.toLower())) + "</figure>\n";
}

QByteArray widthOf(const PicturePair &pair)
{
    return " style=\"--w:" + QByteArray::number(pair.size.width()) + "\">";
}

QString nameOf(const PicturePair &pair)
{
    QStringList parts{pair.page, pair.group, pair.caption};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QByteArray changedCard(const PicturePair &pair)
{
    const QByteArray note = pair.difference == Difference::HighDensity
                                ? QByteArrayLiteral("<p class=\"note\">Only on screens of high density</p>")
                                : QByteArray();
    return "<article class=\"pair\"" + widthOf(pair) + "<h4>" + escaped(pair.caption) + "</h4>" + note +
           "<div class=\"looks\">\n" + figure(pair.before, QStringLiteral("Before"), nameOf(pair)) +
           figure(pair.after, QStringLiteral("After"), nameOf(pair)) + "</div></article>\n";
}

QByteArray unchangedCard(const PicturePair &pair)
{
    return "<article class=\"single\"" + widthOf(pair) + "<h4>" + escaped(pair.caption) + "</h4>" +
           imageElement(pair.after, nameOf(pair)) + "</article>\n";
}

class SheetWriter
{
public:
    SheetWriter(QIODevice *device, const SheetContent &content)
        : m_device(device), m_content(content), m_pages(pagesOf(content.pairs))
    {}

    bool write()
    {
        putHead();
        putIndex();
        put(sizeChoice);
        for (int i = 0; i < m_pages.size(); ++i)
            if (!m_pages.at(i).changed.isEmpty())
                putChangedPage(i);
        putUnchangedPages();
        put("</main>\n</body>\n</html>\n");
        return m_isWritten;
    }

private:
    int changed() const
    {
        return static_cast<int>(std::count_if(
            m_content.pairs.cbegin(), m_content.pairs.cend(),
            [](const PicturePair &pair) { return pair.difference != Difference::None; }));
    }

    void putHead()
    {
        const int all = static_cast<int>(m_content.pairs.size());
        const QString counts =
            changed() == 0 ? QStringLiteral("All %1 specimens are drawn as in the built-in look.").arg(all)
                           : QStringLiteral("%1 changed, %2 as in the built-in look.")
                                 .arg(counted(changed(), QStringLiteral("specimen")), QString::number(all - changed()));
        // In this order, so that a name with a % in it stays what it is.
        QString head = QString::fromUtf8(pageHead);
        head.replace(QLatin1String("%3"), counts);
        head.replace(QLatin1String("%2"), withoutControls(m_content.directory).toHtmlEscaped());
        const QString title = harmless(QFileInfo(m_content.directory).fileName()).toHtmlEscaped();
        const int place = static_cast<int>(head.indexOf(QLatin1String("%1")));
        put(head.replace(place, 2, title).toUtf8());
        for (const QString &warning : m_content.warnings)
            put("<p class=\"fault\">" + escaped(withoutControls(warning)) + "</p>\n");
    }

    void putIndex()
    {
        put("<nav aria-label=\"Pages\"><ul class=\"index\">\n");
        for (int i = 0; i < m_pages.size(); ++i) {
            const SheetPage &page = m_pages.at(i);
            const QString count = page.changed.isEmpty() ? QStringLiteral("unchanged")
                                                         : QStringLiteral("%1 changed").arg(page.changed.size());
            put("<li><a href=\"#page-" + QByteArray::number(i) + "\">" + escaped(page.title) + "</a> <small>" +
                escaped(count) + "</small></li>\n");
        }
        put("</ul></nav>\n");
    }

    void putChangedPage(int index)
    {
        const SheetPage &page = m_pages.at(index);
        const QString counts = QStringLiteral("%1 of %2 changed")
                                   .arg(page.changed.size())
                                   .arg(page.changed.size() + page.unchanged.size());
        put("<section><h2 id=\"page-" + QByteArray::number(index) + "\">" + escaped(page.title) + " <small>" +
            escaped(counts) + "</small></h2>\n");
        putGroups(page.changed, changedCard);
        if (!page.unchanged.isEmpty())
            putUnchanged(page, QStringLiteral("Unchanged here: %1").arg(page.unchanged.size()), QByteArray());
        put("</section>\n");
    }

    void putUnchangedPages()
    {
        const bool isEmpty = std::all_of(m_pages.cbegin(), m_pages.cend(),
                                         [](const SheetPage &page) { return !page.changed.isEmpty(); });
        if (isEmpty)
            return;
        put("<section><h2>Unchanged pages</h2>\n");
        for (int i = 0; i < m_pages.size(); ++i)
            if (m_pages.at(i).changed.isEmpty())
                putUnchanged(m_pages.at(i),
                             QStringLiteral("%1: %2").arg(m_pages.at(i).title).arg(m_pages.at(i).unchanged.size()),
                             " id=\"page-" + QByteArray::number(i) + '"');
        put("</section>\n");
    }

    void putUnchanged(const SheetPage &page, const QString &summary, const QByteArray &id)
    {
        put("<details" + id + "><summary>" + escaped(summary) + "</summary>\n");
        putGroups(page.unchanged, unchangedCard);
        put("</details>\n");
    }

    void putGroups(const QVector<PicturePair> &pairs, QByteArray (*card)(const PicturePair &))
    {
        for (int i = 0; i < pairs.size(); ++i) {
            if (i == 0 || pairs.at(i - 1).group != pairs.at(i).group)
                put((i == 0 ? QByteArray() : QByteArrayLiteral("</div>\n")) + "<h3>" + escaped(pairs.at(i).group) +
                    "</h3>\n<div class=\"cards\">\n");
            put(card(pairs.at(i)));
        }
        put("</div>\n");
    }

    void put(const QByteArray &text) { m_isWritten = m_isWritten && m_device->write(text) == text.size(); }

    QIODevice *m_device;
    const SheetContent &m_content;
    QVector<SheetPage> m_pages;
    bool m_isWritten = true;
};

} // namespace

bool writeSheetHtml(QIODevice *device, const SheetContent &content)
{
    return SheetWriter(device, content).write();
}

} // namespace lookcheck
