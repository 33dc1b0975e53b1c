// Standard widgets under the house style, beside the same widgets under the styles that come with Qt.
#include "Groups.h"
#include "WidgetKinds.h"

#include <CC4Styles/CC4StyleFactory.h>

#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleFactory>

#include <array>
#include <map>
#include <memory>

namespace {

const QString house = QStringLiteral("ours");

// Kept to the end: a widget does not own its style.
QStyle *styleOf(const QString &name)
{
    static std::map<QString, QStyle *> styles;
    QStyle *&style = styles[name];
    if (style == nullptr)
        style = name == house ? CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style) : QStyleFactory::create(name);
    return style;
}

Contender painting(const WidgetKind &kind, const QString &styleName, bool isCold)
{
    const std::shared_ptr<QWidget> widget = kind.make();
    dress(*widget, *styleOf(styleName), kind.size);
    const auto canvas = std::make_shared<Canvas>(kind.size);
    if (isCold)
        return {styleName,
                [widget, canvas] {
                    QPixmapCache::clear();
                    canvas->paint(*widget);
                },
                {}};
    return {styleName, [widget, canvas] { canvas->paint(*widget); }, {}};
}

Comparison paintingUnderEachStyle(const WidgetKind &kind, const QString &group, bool isCold)
{
    const double limit = isCold ? kind.coldLimit : kind.warmLimit;
    Comparison comparison{group, kind.name, nanoseconds, {}, {}};
    if (limit > 0)
        comparison.promise = {Promise::Ratio, limit, {}};
    const std::vector<QString> styles = contendingStyles();
    comparison.makeContenders = [&kind, isCold, styles] {
        std::vector<Contender> contenders;
        contenders.reserve(styles.size());
        for (const QString &style : styles)
            contenders.push_back(painting(kind, style, isCold));
        return contenders;
    };
    const bool isForm = kind.make == makeForm;
    for (std::size_t i = 2; isForm && !isCold && i < styles.size(); ++i)
        comparison.promise.ahead.push_back(i);
    return comparison;
}

std::vector<Comparison> paintingOfEachKind(const QString &group, bool isCold)
{
    std::vector<Comparison> comparisons;
    for (const WidgetKind &kind : widgetKinds())
        comparisons.push_back(paintingUnderEachStyle(kind, group, isCold));
    return comparisons;
}

/** A widget that paints with a function and nothing else. */
class Bare : public QWidget
{
public:
    explicit Bare(std::function<void(QPainter &)> draw) : m_draw(std::move(draw)) {}

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_draw(painter);
    }

private:
    std::function<void(QPainter &)> m_draw;
};

Contender bare(const QString &name, const QSize &size, std::function<void(QPainter &)> draw)
{
    const auto widget = std::make_shared<Bare>(std::move(draw));
    widget->resize(size);
    const auto canvas = std::make_shared<Canvas>(size);
    return {name, [widget, canvas] { canvas->paint(*widget); }, {}};
}

// The least that a key with a size in it takes: one string, in which the numbers stand as they are.
QString cacheKey(const QSize &size)
{
    const std::array<QChar, 4> units = {QLatin1Char('b'), QLatin1Char(':'), QChar(static_cast<ushort>(size.width())),
                                        QChar(static_cast<ushort>(size.height()))};
    return QString(units.data(), static_cast<int>(units.size()));
}

QPixmap pictureFromCache(const QSize &size)
{
    const QString key = cacheKey(size);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    picture = QPixmap(size);
    picture.fill(QColor(0, 0x65, 0xB1, 0x80));
    QPixmapCache::insert(key, picture);
    return picture;
}

std::vector<Contender> leastPainters(const WidgetKind &kind)
{
    const QSize size = kind.size;
    const QPixmap picture = pictureFromCache(size);
    const QString text = QStringLiteral("Print");
    const QRect rect(QPoint(0, 0), size);
    return {
        painting(kind, house, false),
        bare(QStringLiteral("a pixmap"), size, [picture](QPainter &painter) { painter.drawPixmap(0, 0, picture); }),
        bare(QStringLiteral("from the cache"), size,
             [size](QPainter &painter) { painter.drawPixmap(0, 0, pictureFromCache(size)); }),
        bare(QStringLiteral("and a text"), size,
             [size, rect, text](QPainter &painter) {
                 painter.drawPixmap(0, 0, pictureFromCache(size));
                 painter.drawText(rect, Qt::AlignCenter | Qt::TextShowMnemonic, text);
             }),
    };
}

} // namespace

std::vector<QString> contendingStyles()
{
    std::vector<QString> names = {house, QStringLiteral("Fusion")};
    for (const char *name : {"Windows", "Plastique", "Breeze"})
        if (QStyleFactory::keys().contains(QLatin1String(name), Qt::CaseInsensitive))
            names.push_back(QLatin1String(name));
    return names;
}

std::vector<Comparison> warmPainting()
{
    return paintingOfEachKind(QStringLiteral("painting"), false);
}

std::vector<Comparison> coldPainting()
{
    return paintingOfEachKind(QStringLiteral("painting, cache cleared"), true);
}

std::vector<Comparison> leastPainting()
{
    const WidgetKind &kind = widgetKinds().front();
    Comparison comparison{QStringLiteral("limits of painting"), kind.name, nanoseconds, {}, {}};
    comparison.makeContenders = [&kind] {
        return leastPainters(kind);
    };
    return {comparison};
}
