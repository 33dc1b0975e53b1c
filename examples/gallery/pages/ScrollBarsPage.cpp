#include "Pages.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CBlueScrollBarStyle>
#include <ZelCmnCtrl03/CDropDownScrollBarStyle>

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace gallery {

namespace {

constexpr int barLength = 130;
constexpr int tinyLength = 48;
constexpr int noRoomLength = 24; // less than both arrows
constexpr QSize areaSize(220, 140);

/** Of a scroll bar: how long it is, and how far it scrolls in steps of a page of 10. */
struct Range
{
    int length;
    int maximum;
    int value;
};

constexpr Range shortRange = {barLength, 10, 5};
constexpr Range longRange = {barLength, 10000, 3000};
constexpr Range atStart = {barLength, 40, 0};
constexpr Range atEnd = {barLength, 40, 40};
constexpr Range emptyRange = {barLength, 0, 0};
constexpr Range tiny = {tinyLength, 40, 20};
constexpr Range noRoom = {noRoomLength, 40, 20};

/** The style that a look needs; null for the application's own. Made once for all bars. */
using Look = QStyle *(*)();

template <class Style>
QStyle *lookOf()
{
    static QStyle *const style = [] {
        auto *made = new Style;
        made->setParent(qApp);
        return made;
    }();
    return style;
}

Maker scrollBar(Qt::Orientation orientation, const Range &range, Look look = nullptr)
{
    return [orientation, range, look](State state, const MakerSettings &settings, QWidget *parent) {
        auto *bar = new QScrollBar(orientation, parent);
        if (look != nullptr)
            bar->setStyle(look());
        bar->setRange(0, range.maximum);
        bar->setPageStep(10);
        bar->setValue(range.value);
        if (state == State::Disabled)
            bar->setEnabled(false);
        applyStyles(bar, state, settings, QStyle::SC_ScrollBarSlider);
        const QSize size(range.length, bar->sizeHint().height());
        bar->resize(orientation == Qt::Horizontal ? size : QSize(bar->sizeHint().width(), range.length));
        QObject::connect(
            bar, &QScrollBar::valueChanged, bar,
            [report = settings.report](int value) { report(QStringLiteral("now at %1").arg(value)); });
        return bar;
    };
}

QWidget *makeScrollArea(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    auto *label = new QLabel;
    label->setPixmap(sampleIcon(QStringLiteral("photos-48")).pixmap(QSize(48, 48)));
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->resize(2 * areaSize);
    area->setWidget(label);
    if (state == State::Disabled)
        area->setEnabled(false);
    applyForeignStyle(area, settings);
    area->resize(areaSize);
    return area;
}

/** The ranges that show what is different about a look. */
std::vector<Row> rowsOf(Qt::Orientation orientation, Look look)
{
    return {
        {QStringLiteral("Short range"), scrollBar(orientation, shortRange, look)},
        {QStringLiteral("Long range"), scrollBar(orientation, longRange, look)},
        {QStringLiteral("Tiny"), scrollBar(orientation, tiny, look)},
    };
}

std::vector<Row> rowsOf(Qt::Orientation orientation)
{
    return {
        {QStringLiteral("Short range"), scrollBar(orientation, shortRange)},
        {QStringLiteral("Long range"), scrollBar(orientation, longRange)},
        {QStringLiteral("At the start"), scrollBar(orientation, atStart)},
        {QStringLiteral("At the end"), scrollBar(orientation, atEnd)},
        {QStringLiteral("Nothing to scroll"), scrollBar(orientation, emptyRange)},
        {QStringLiteral("Tiny"), scrollBar(orientation, tiny)},
        {QStringLiteral("No room for its arrows"), scrollBar(orientation, noRoom)},
    };
}

const std::vector<Column> states = {
    {QStringLiteral("Normal"), State::Normal},          {QStringLiteral("Slider hovered"), State::Hovered},
    {QStringLiteral("Slider pressed"), State::Pressed}, {QStringLiteral("Disabled"), State::Disabled},
    {QStringLiteral("Working"), State::Working},
};

const std::vector<Row> areaRow = {{QStringLiteral("QScrollArea"), makeScrollArea}};
const std::vector<Column> areaStates = {
    {QStringLiteral("Working"), State::Working},
    {QStringLiteral("Disabled"), State::Disabled},
};

} // namespace

PageDescription scrollBarsPage()
{
    return {
        QStringLiteral("scroll-bars"),
        QStringLiteral("Scroll bars"),
        {
            {QStringLiteral("Horizontal"), QStringLiteral("The house look, in ranges and lengths of all kinds."),
             table(rowsOf(Qt::Horizontal), states)},
            {QStringLiteral("Vertical"), QStringLiteral("The same bars upright."), table(rowsOf(Qt::Vertical), states)},
            {QStringLiteral("CBlueScrollBarStyle"), QStringLiteral("Bitmaps all over; disabled, it looks as ever."),
             table(rowsOf(Qt::Horizontal, lookOf<CBlueScrollBarStyle>), states)},
            {QStringLiteral("CBlueScrollBarStyle, upright"), QString(),
             table(rowsOf(Qt::Vertical, lookOf<CBlueScrollBarStyle>), states)},
            {QStringLiteral("CDropDownScrollBarStyle"), QStringLiteral("For the list of a drop-down: upright only."),
             table(rowsOf(Qt::Vertical, lookOf<CDropDownScrollBarStyle>), states)},
            {QStringLiteral("Both in an area"), QStringLiteral("With the corner between them."),
             table(areaRow, areaStates)},
        }};
}

} // namespace gallery
