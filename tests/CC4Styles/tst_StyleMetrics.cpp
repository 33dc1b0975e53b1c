// What the style answers about sizes, hints and layout, how it shapes tool tips, and what widgets get from it.
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/CC4StyleFactory.h"
#include "TextBoxEx/TextBoxEx.h"
#include "UiGraphics.h"

#include <QApplication>
#include <QComboBox>
#include <QCommonStyle>
#include <QLabel>
#include <QMenu>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QToolTip>

namespace {

QColor grey(int value)
{
    return QColor(value, value, value);
}

/** The layout of every style that has none of its own, with the metrics of another one. */
class PlainLayout : public QCommonStyle
{
public:
    explicit PlainLayout(const QStyle *style) : m_metrics(style) {}
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return m_metrics->pixelMetric(metric, option, widget);
    }

private:
    const QStyle *m_metrics;
};

QLabel *toolTip()
{
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return qobject_cast<QLabel *>(widget);
    return nullptr;
}

QString textOfWidth(const QFontMetrics &metrics, int wanted)
{
    for (int narrow = 0; narrow < 50; ++narrow) {
        QString text(narrow, QLatin1Char('i'));
        while (metrics.size(0, text).width() < wanted)
            text += QLatin1Char('W');
        if (metrics.size(0, text).width() == wanted)
            return text;
    }
    return QString();
}

void setSheet(const QString &sheet)
{
    static_cast<QApplication *>(QApplication::instance())->setStyleSheet(sheet);
}

} // namespace

class tst_StyleMetrics : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void metricsAndHints();
    void sizes();
    void visualAlignment();
    void spinBoxLayout_data();
    void spinBoxLayout();
    void comboBoxAndScrollBarLayout();
    void longToolTipsWrap();
    void toolTipsAreShapedEachTime();
    void longToolTipsStayInSight_data();
    void longToolTipsStayInSight();
    void buttonColorsAreThoseOfTheLookThatIsPolished();
    void polishing();

private:
    CCommonControlStyle *m_style = nullptr; // the application's
};

void tst_StyleMetrics::initTestCase()
{
    m_style = qobject_cast<CCommonControlStyle *>(CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style));
    QVERIFY(m_style != nullptr);
}

void tst_StyleMetrics::metricsAndHints()
{
    const struct
    {
        QStyle::PixelMetric metric;
        int answer;
    } metrics[] = {{QStyle::PM_ComboBoxFrameWidth, 8},
                   {QStyle::PM_TabBarTabHSpace, 20},
                   {QStyle::PM_TabBarTabVSpace, 5},
                   {QStyle::PM_TabBarBaseHeight, 10},
                   {QStyle::PM_SplitterWidth, 9},
                   {QStyle::PM_IndicatorWidth, 16},
                   {QStyle::PM_IndicatorHeight, 16},
                   {QStyle::PM_ExclusiveIndicatorWidth, 18},
                   {QStyle::PM_ExclusiveIndicatorHeight, 18},
                   {QStyle::PM_ListViewIconSize, 90}};
    for (const auto &entry : metrics)
        QCOMPARE(m_style->pixelMetric(entry.metric), entry.answer);
    const QStyle *base = m_style->baseStyle();
    QCOMPARE(m_style->pixelMetric(QStyle::PM_ScrollBarExtent),
             std::max(21, base->pixelMetric(QStyle::PM_ScrollBarExtent) + 4));
    QCOMPARE(m_style->pixelMetric(QStyle::PM_MenuPanelWidth),
             std::max(2, base->pixelMetric(QStyle::PM_MenuPanelWidth)));
    const struct
    {
        QStyle::StyleHint hint;
        int answer;
    } hints[] = {{QStyle::SH_EtchDisabledText, 1},
                 {QStyle::SH_DitherDisabledText, 0},
                 {QStyle::SH_Table_GridLineColor, static_cast<int>(0xFFEEEEFF)}, // opaque
                 {QStyle::SH_UnderlineShortcut, 1},
                 {QStyle::SH_ItemView_ShowDecorationSelected, 1},
                 {QStyle::SH_ToolTipLabel_Opacity, 255}};
    for (const auto &entry : hints)
        QCOMPARE(m_style->styleHint(entry.hint), entry.answer);
}

void tst_StyleMetrics::sizes()
{
    auto slider = optionFor<QStyleOptionSlider>(QRect());
    for (const auto ticks : {QSlider::NoTicks, QSlider::TicksBelow, QSlider::TicksBothSides}) {
        slider.tickPosition = ticks;
        const int rowsOfTicks = ticks == QSlider::NoTicks ? 0 : ticks == QSlider::TicksBothSides ? 2 : 1;
        const auto sizeOf = [&](Qt::Orientation orientation, const QSize &contents) {
            slider.orientation = orientation;
            return m_style->sizeFromContents(QStyle::CT_Slider, &slider, contents, nullptr);
        };
        QCOMPARE(sizeOf(Qt::Horizontal, QSize(84, 1)).height(), 20 + 8 * rowsOfTicks);
        QCOMPARE(sizeOf(Qt::Vertical, QSize(1, 84)).width(), 20 + 8 * rowsOfTicks);
        QVERIFY(sizeOf(Qt::Horizontal, QSize(84, 90)).height() >= 90);
    }

    const auto comboBox = optionFor<QStyleOptionComboBox>(QRect());
    for (const int height : {10, 40})
        QCOMPARE(m_style->sizeFromContents(QStyle::CT_ComboBox, &comboBox, QSize(80, height), nullptr).height(), 21);
    auto spinBox = optionFor<QStyleOptionSpinBox>(QRect());
    const auto spinBoxHeight = [&](int fontPixels) {
        QFont font;
        font.setPixelSize(fontPixels);
        spinBox.fontMetrics = QFontMetrics(font);
        return m_style->sizeFromContents(QStyle::CT_SpinBox, &spinBox, QSize(80, 100), nullptr).height();
    };
    QCOMPARE(spinBoxHeight(10), 21);
    QVERIFY(spinBoxHeight(40) >= 44);
}

void tst_StyleMetrics::visualAlignment()
{
    constexpr auto ltr = Qt::LeftToRight;
    constexpr auto rtl = Qt::RightToLeft;
    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignAbsolute;
    const Qt::Alignment right = Qt::AlignRight | Qt::AlignAbsolute;
    QCOMPARE(m_style->visualAlignment(ltr, Qt::AlignVCenter), left | Qt::AlignVCenter);
    QCOMPARE(m_style->visualAlignment(rtl, Qt::AlignTop), right | Qt::AlignTop);
    QCOMPARE(m_style->visualAlignment(rtl, Qt::AlignRight), left);
    QCOMPARE(m_style->visualAlignment(rtl, left), left);
    for (const auto either : {Qt::AlignHCenter, Qt::AlignJustify})
        QCOMPARE(m_style->visualAlignment(rtl, either), Qt::Alignment(either));
}

void tst_StyleMetrics::spinBoxLayout_data()
{
    QTest::addColumn<QStyle::SubControl>("subControl");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("expected");
    const auto ltr = Qt::LeftToRight;
    const auto rtl = Qt::RightToLeft;
    const int f = QApplication::style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const QRect field(10 + f, 5 + f, 100 - 18 - 2 * f, 20 - 2 * f);
    QTest::newRow("up") << QStyle::SC_SpinBoxUp << ltr << QRect(109 - 18, 5 + 2, 16, 8);
    QTest::newRow("down") << QStyle::SC_SpinBoxDown << ltr << QRect(109 - 18, 10, 16, 8); // the top does not count
    QTest::newRow("up, mirrored") << QStyle::SC_SpinBoxUp << rtl << QRect(13, 5 + 2, 16, 8);
    QTest::newRow("down, mirrored") << QStyle::SC_SpinBoxDown << rtl << QRect(13, 10, 16, 8);
    QTest::newRow("field") << QStyle::SC_SpinBoxEditField << ltr << field;
    QTest::newRow("frame") << QStyle::SC_SpinBoxFrame << ltr << QRect();
    QTest::newRow("frame, mirrored") << QStyle::SC_SpinBoxFrame << rtl << QRect();
}

void tst_StyleMetrics::spinBoxLayout()
{
    QFETCH(QStyle::SubControl, subControl);
    QFETCH(Qt::LayoutDirection, direction);
    auto option = optionFor<QStyleOptionSpinBox>(QRect(10, 5, 100, 20));
    option.direction = direction;
    QTEST(m_style->subControlRect(QStyle::CC_SpinBox, &option, subControl), "expected");
    const QStyleOptionComplex wrong;
    QCOMPARE(m_style->subControlRect(QStyle::CC_SpinBox, &wrong, QStyle::SC_SpinBoxUp), QRect());
}

void tst_StyleMetrics::comboBoxAndScrollBarLayout()
{
    const PlainLayout plain(m_style);
    auto comboBox = optionFor<QStyleOptionComboBox>(QRect(10, 5, 100, 30));
    auto bar = optionFor<QStyleOptionSlider>(QRect(10, 5, 200, 120));
    bar.maximum = 100;
    bar.pageStep = 30;
    bar.sliderPosition = 20;
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        comboBox.direction = bar.direction = direction;
        for (const auto part : {QStyle::SC_ComboBoxFrame, QStyle::SC_ComboBoxEditField, QStyle::SC_ComboBoxArrow}) {
            QRect expected = m_style->baseStyle()->subControlRect(QStyle::CC_ComboBox, &comboBox, part);
            expected.setHeight(18);
            QCOMPARE(m_style->subControlRect(QStyle::CC_ComboBox, &comboBox, part), expected);
        }
        const QRect list = m_style->subControlRect(QStyle::CC_ComboBox, &comboBox, QStyle::SC_ComboBoxListBoxPopup);
        QCOMPARE(list.height(), 18);
        QCOMPARE(list.bottom(), 5 + 20); // of the drawn box
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            bar.orientation = orientation;
            for (const auto part :
                 {QStyle::SC_ScrollBarSubLine, QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubPage,
                  QStyle::SC_ScrollBarAddPage, QStyle::SC_ScrollBarGroove, QStyle::SC_ScrollBarSlider})
                QCOMPARE(m_style->subControlRect(QStyle::CC_ScrollBar, &bar, part),
                         plain.subControlRect(QStyle::CC_ScrollBar, &bar, part));
        }
    }
}

void tst_StyleMetrics::longToolTipsWrap()
{
    const QFont font = UIGGetTooltipFont(11, 53, false);
    for (const int width : {400, 401}) {
        const bool wraps = width > 400;
        const QString text = textOfWidth(QFontMetrics(font), width);
        QVERIFY(!text.isEmpty());
        QLabel label(QStringLiteral("  ") + text + QLatin1Char(' ')); // only the trimmed text counts
        QCOMPARE(m_style->styleHint(QStyle::SH_ToolTipLabel_Opacity, nullptr, &label), 255);
        QCOMPARE(label.wordWrap(), wraps);
        QCOMPARE(label.minimumWidth() == 400 && label.maximumWidth() == 400, wraps);
        QCOMPARE(label.contentsMargins(), QMargins(7, 0, 7, 7));
        QCOMPARE(label.alignment(), Qt::AlignLeft | Qt::AlignTop);
        QCOMPARE(label.minimumHeight(), 26);
        QVERIFY(label.font().pixelSize() == 11 && label.font().weight() == font.weight());
    }
}

void tst_StyleMetrics::toolTipsAreShapedEachTime()
{
    QWidget window;
    window.resize(300, 200);
    window.show();
    const QString longText = QStringLiteral("A tip of many words. ").repeated(20).trimmed();
    const QString shortText = QStringLiteral("Short");
    for (const char *sheet : {"", "QLineEdit { color: blue }"}) {
        setSheet(QLatin1String(sheet));
        const auto withoutSheet = qScopeGuard([] { setSheet(QString()); });
        for (const QString &text : {shortText, longText, shortText, longText}) {
            QToolTip::showText(window.mapToGlobal(QPoint(10, 10)), text, &window);
            const QLabel *tip = toolTip();
            QVERIFY(tip != nullptr);
            QCOMPARE(tip->text(), text);
            QCOMPARE(tip->font().pixelSize(), 11);
            QVERIFY(tip->height() >= 26);
            const bool isLong = text == longText;
            QCOMPARE(tip->wordWrap(), isLong);
            QVERIFY2(isLong ? tip->width() == 400 : tip->width() < 200, qPrintable(QString::number(tip->width())));
            QVERIFY(tip->height() >= tip->heightForWidth(tip->width())); // nothing of the text is cut
        }
        QToolTip::hideText();
    }
}

void tst_StyleMetrics::longToolTipsStayInSight_data()
{
    QTest::addColumn<QPoint>("pointer");
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::newRow("middle") << screen.center();
    QTest::newRow("right edge") << QPoint(screen.right() - 3, screen.center().y());
    QTest::newRow("bottom edge") << QPoint(screen.center().x(), screen.bottom() - 3);
    QTest::newRow("corner") << screen.bottomRight() - QPoint(3, 3);
}

void tst_StyleMetrics::longToolTipsStayInSight()
{
    QFETCH(QPoint, pointer);
    constexpr int near = 40; // pixels
    for (const char *sheet : {"", "QToolTip { color: blue }"}) {
        setSheet(QLatin1String(sheet));
        const auto withoutSheet = qScopeGuard([] { setSheet(QString()); });
        QCursor::setPos(pointer);
        QToolTip::showText(pointer, QStringLiteral("A tip of many words. ").repeated(30));
        QVERIFY(toolTip() != nullptr);
        const QRect place(toolTip()->pos(), toolTip()->size());
        QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(place));
        QVERIFY(!place.contains(pointer));
        QVERIFY(place.adjusted(-near, -near, near, near).contains(pointer));
        QToolTip::hideText();
        QTRY_VERIFY(toolTip() == nullptr);
    }
}

// Which look has which, the painters' test tells; a glowing button's label is white only when it is painted.
void tst_StyleMetrics::buttonColorsAreThoseOfTheLookThatIsPolished()
{
    const QColor text(1, 2, 3, 4);
    CButtonEx button;
    QPalette own = button.palette();
    own.setColor(QPalette::ButtonText, Qt::cyan);
    button.setPalette(own);
    button.setTextColor(text);
    button.setButtonStyle(CButtonEx::BSEX_Tertiary);
    m_style->polish(&button);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(button.palette().color(group, QPalette::ButtonText), QColor(Qt::cyan));
    button.setButtonStyle(CButtonEx::BSEX_Glowing);
    m_style->polish(&button);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(button.palette().color(group, QPalette::ButtonText), text);
    const QPalette polished = button.palette();
    button.setButtonStyle(CButtonEx::BSEX_Normal);
    button.setButtonStyle(CButtonEx::BSEX_Active);
    QCOMPARE(button.palette(), polished);
}

void tst_StyleMetrics::polishing()
{
    QPushButton button;
    QComboBox comboBox;
    const QPalette own = button.palette();
    for (QWidget *widget : std::initializer_list<QWidget *>{&button, &comboBox}) {
        m_style->polish(widget);
        QVERIFY(widget->testAttribute(Qt::WA_Hover));
        m_style->unpolish(widget);
        QVERIFY(!widget->testAttribute(Qt::WA_Hover));
    }
    QCOMPARE(button.palette(), own);

    CTextBoxEx textBox;
    m_style->polish(&textBox);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(textBox.palette().color(group, QPalette::Base), QColor(255, 255, 255, 0));

    QMenu menu;
    menu.addAction(QStringLiteral("Entry"));
    menu.ensurePolished();
    const QBrush ground = menu.palette().brush(QPalette::Window);
    QVERIFY(ground.gradient() != nullptr);
    const auto *gradient = static_cast<const QLinearGradient *>(ground.gradient());
    QCOMPARE(gradient->start(), QPointF(0, 0));
    QCOMPARE(gradient->finalStop(), QPointF(menu.width(), menu.height()));
    QCOMPARE(gradient->stops(), QGradientStops({{0, Qt::white}, {1, grey(0xEA)}}));
    menu.resize(menu.size() * 2);
    QCOMPARE(menu.palette().brush(QPalette::Window), ground);

    QSpinBox spinBox;
    spinBox.ensurePolished();
    const QPalette polished = spinBox.palette();
    QCOMPARE(polished.color(QPalette::Active, QPalette::Text), QColor(0x33, 0x99, 0xCC));
    QCOMPARE(polished.color(QPalette::Inactive, QPalette::Text), grey(0x66));
    m_style->unpolish(&spinBox); // changes nothing
    QCOMPARE(spinBox.palette(), polished);
    QCOMPARE(spinBox.font().pixelSize(), 12);
    QCOMPARE(spinBox.contextMenuPolicy(), Qt::NoContextMenu);
    QScrollBar scrollBar;
    m_style->polish(&scrollBar);
    QCOMPARE(scrollBar.contextMenuPolicy(), Qt::NoContextMenu);
}

HOUSE_TEST_MAIN(tst_StyleMetrics)
#include "tst_StyleMetrics.moc"
