#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/CC4StyleFactory.h"
#include "TextBoxEx/TextBoxEx.h"

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QPointer>
#include <QProcess>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleFactory>
#include <QToolTip>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr auto mainStyle = CC4StyleFactory::CC4Style;

QString baseName()
{
    const auto *style = qobject_cast<const QProxyStyle *>(QApplication::style());
    return style != nullptr ? QString::fromLatin1(style->baseStyle()->metaObject()->className()) : QString();
}

/** What an application has on the screen: a window with controls, a menu, a tool tip. */
struct Screen
{
    Screen() : button(&window), comboBox(&window), spinBox(&window), scrollBar(&window)
    {
        window.show();
        menu.addAction(QStringLiteral("Entry"));
        menu.popup(window.mapToGlobal(QPoint(5, 5)));
        QToolTip::showText(window.mapToGlobal(QPoint(5, 5)), QStringLiteral("A tip of words. ").repeated(40), &window);
    }

    // Everything is painted, and nothing of what was posted is left.
    void use()
    {
        window.grab();
        menu.grab();
        menu.adjustSize();
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (widget->inherits("QTipLabel"))
                widget->grab();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    QWidget window;
    CButtonEx button;
    QComboBox comboBox;
    QSpinBox spinBox;
    QScrollBar scrollBar;
    QMenu menu;
};

void setSheet(const char *sheet)
{
    static_cast<QApplication *>(QApplication::instance())->setStyleSheet(QLatin1String(sheet));
}

} // namespace

class tst_StyleFactory : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void oneObjectForAllAskers();
    void blueStyleBecomesTheApplications();
    void headerStyleDoesNot();
    void unknownKindsGiveNothing();
    void buttonsShareOneStyle();
    void survivesAnApplicationThatChangesItsStyle();
    void leavesControlsUnderStyleSheets_data();
    void leavesControlsUnderStyleSheets();
    void changesUnderOpenWindows();
    void styleOfOneWidget();
    void leavesWithOpenWindows();
    void standsOnTheExpectedBase();
};

void tst_StyleFactory::oneObjectForAllAskers()
{
    const QPointer<QStyle> first = CC4StyleFactory::getStyle(mainStyle);
    QVERIFY(qobject_cast<CCommonControlStyle *>(first.data()) != nullptr);
    QCOMPARE(QApplication::style(), first.data());
    QCOMPARE(CC4StyleFactory::getStyle(mainStyle), first.data());

    CC4StyleFactory::releaseStyle(mainStyle);
    QCOMPARE(CC4StyleFactory::getStyle(mainStyle), first.data()); // one reference was still held
    CC4StyleFactory::releaseStyle(mainStyle);
    CC4StyleFactory::releaseStyle(mainStyle);
    QCOMPARE(QApplication::style(), first.data()); // the application keeps it

    QStyle *second = CC4StyleFactory::getStyle(mainStyle);
    QCOMPARE(QApplication::style(), second);
    QVERIFY(first.isNull()); // replaced, and so destroyed by the application
    CC4StyleFactory::releaseStyle(mainStyle);
}

void tst_StyleFactory::blueStyleBecomesTheApplications()
{
    constexpr auto blueStyle = CC4StyleFactory::BlueScrollStyle;
    const QPointer<QStyle> main = CC4StyleFactory::getStyle(mainStyle);
    QStyle *blue = CC4StyleFactory::getStyle(blueStyle);
    QVERIFY(dynamic_cast<CBlueScrollBarStyle *>(blue) != nullptr);
    QCOMPARE(QApplication::style(), blue);
    QVERIFY(main.isNull());
    QCOMPARE(CC4StyleFactory::getStyle(blueStyle), blue);
    CC4StyleFactory::releaseStyle(blueStyle);
    CC4StyleFactory::releaseStyle(blueStyle);
    QCOMPARE(QApplication::style(), blue);
    CC4StyleFactory::releaseStyle(mainStyle);
}

void tst_StyleFactory::headerStyleDoesNot()
{
    constexpr auto headerStyle = CC4StyleFactory::TBWStyle;
    QStyle *main = CC4StyleFactory::getStyle(mainStyle);
    auto *header = qobject_cast<CTBWStyle *>(CC4StyleFactory::getStyle(headerStyle));
    QVERIFY(header != nullptr);
    QCOMPARE(CC4StyleFactory::getStyle(headerStyle), header);
    QCOMPARE(QApplication::style(), main);
    CC4StyleFactory::releaseStyle(headerStyle);
    CC4StyleFactory::releaseStyle(headerStyle);
    QStyle *second = CC4StyleFactory::getStyle(headerStyle);
    QVERIFY(second != header); // forgotten, and not destroyed
    header->dispose();
    delete second; // as whoever set it on a widget would
    CC4StyleFactory::releaseStyle(headerStyle);
    CC4StyleFactory::releaseStyle(mainStyle);
}

void tst_StyleFactory::unknownKindsGiveNothing()
{
    for (const int kind : {3, -1}) {
        const CC4StyleFactory::CC4Styles unknown{QFlag(kind)};
        QStyle *style = CC4StyleFactory::getStyle(mainStyle);
        QVERIFY(CC4StyleFactory::getStyle(unknown) == nullptr);
        QCOMPARE(QApplication::style(), style);
        CC4StyleFactory::releaseStyle(unknown);
        QCOMPARE(CC4StyleFactory::getStyle(mainStyle), style); // no count was touched
        CC4StyleFactory::releaseStyle(mainStyle);
        CC4StyleFactory::releaseStyle(mainStyle);
    }
}

void tst_StyleFactory::buttonsShareOneStyle()
{
    std::unique_ptr<CButtonEx> buttons[3];
    for (auto &button : buttons)
        button = std::make_unique<CButtonEx>();
    QStyle *style = QApplication::style();
    for (const auto &button : buttons)
        QCOMPARE(button->style(), style);
    QCOMPARE(QApplication::instance()->findChildren<CCommonControlStyle *>().size(), 1);

    buttons[0].reset();
    buttons[1].reset();
    QCOMPARE(CC4StyleFactory::getStyle(mainStyle), style); // still shared with the last button
    CC4StyleFactory::releaseStyle(mainStyle);
    buttons[2].reset();
    QVERIFY(CC4StyleFactory::getStyle(mainStyle) != style); // forgotten with the last reference
    CC4StyleFactory::releaseStyle(mainStyle);
}

void tst_StyleFactory::survivesAnApplicationThatChangesItsStyle()
{
    CButtonEx before;
    const QPointer<QStyle> gone = before.style();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QVERIFY(gone.isNull());
    QCOMPARE(before.style(), QApplication::style());
    before.grab();

    const CButtonEx after;
    QVERIFY(qobject_cast<CCommonControlStyle *>(after.style()) != nullptr);
    QCOMPARE(QApplication::style(), after.style());
}

void tst_StyleFactory::leavesControlsUnderStyleSheets_data()
{
    QTest::addColumn<bool>("isOfTheWindow");
    QTest::newRow("of the control") << false;
    QTest::newRow("of its window") << true;
}

// Qt's style for style sheets goes on with the style that a control had before, without asking whether it is there.
void tst_StyleFactory::leavesControlsUnderStyleSheets()
{
    QFETCH(bool, isOfTheWindow);
    QWidget window;
    CButtonEx button(&window);
    CTextBoxEx textBox(&window);
    window.show();
    for (QWidget *widget : std::initializer_list<QWidget *>{&button, &textBox})
        (isOfTheWindow ? &window : widget)->setStyleSheet(QStringLiteral("* { padding: 3px }"));
    const QPointer<QStyle> main = CC4StyleFactory::getStyle(mainStyle);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QVERIFY(main.isNull());
    window.grab();
    window.setStyleSheet(QString());
    button.setStyleSheet(QString());
    QCOMPARE(button.style(), QApplication::style());
    CC4StyleFactory::releaseStyle(mainStyle);
}

void tst_StyleFactory::changesUnderOpenWindows()
{
    Screen screen;
    QVERIFY(screen.menu.isVisible());
    screen.use();
    for (int round = 0; round < 2; ++round) {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        screen.use();
        const QStyle *house = CC4StyleFactory::getStyle(mainStyle);
        screen.use();
        QCOMPARE(screen.comboBox.style(), house);
        QVERIFY(screen.comboBox.testAttribute(Qt::WA_Hover));

        setSheet("QPushButton { color: red } QToolTip { color: blue }");
        screen.use();
        QVERIFY(screen.comboBox.style() != house);
        setSheet("");
        screen.use();
        QCOMPARE(QApplication::style(), house);
        QCOMPARE(screen.comboBox.style(), house);
        CC4StyleFactory::releaseStyle(mainStyle);
    }
}

void tst_StyleFactory::styleOfOneWidget()
{
    Screen screen;
    QStyle *house = QApplication::style();
    auto own = std::make_unique<CBlueScrollBarStyle>();
    screen.scrollBar.setStyle(own.get());
    screen.use();
    QCOMPARE(screen.scrollBar.style(), own.get());
    setSheet("QLabel { color: red }"); // takes its place, and gives it back
    screen.use();
    setSheet("");
    QCOMPARE(screen.scrollBar.style(), own.get());
    own.reset();
    screen.use();
    QCOMPARE(screen.scrollBar.style(), house);
}

void tst_StyleFactory::leavesWithOpenWindows()
{
    QProcess probe;
    probe.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    probe.start(QStringLiteral(LEAVING_PROBE), QStringList());
    QVERIFY(probe.waitForFinished());
    QCOMPARE(probe.exitStatus(), QProcess::NormalExit);
    QCOMPARE(probe.exitCode(), 0);
}

void tst_StyleFactory::standsOnTheExpectedBase()
{
    const CButtonEx button;
    const bool plastique = QStyleFactory::keys().contains(QStringLiteral("Plastique"), Qt::CaseInsensitive);
    if (qEnvironmentVariableIsSet("ZEL_TEST_WITHOUT_STYLE_PLUGINS"))
        QVERIFY(!plastique);
    QCOMPARE(baseName(), plastique ? QStringLiteral("QPlastiqueStyle") : QStringLiteral("QFusionStyle"));
}

HOUSE_TEST_MAIN(tst_StyleFactory)
#include "tst_StyleFactory.moc"
