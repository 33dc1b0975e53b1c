#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "MenuEx/MenuEx.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

using Pointer::enter;
using Pointer::leave;

/** An active window with two glowing buttons, each with a menu. */
struct GlowingPair
{
    GlowingPair() : first(&window), second(&window), firstMenu(&window), secondMenu(&window)
    {
        window.resize(600, 400);
        prepare(first, firstMenu, 100);
        prepare(second, secondMenu, 300);
        window.show();
        QApplication::setActiveWindow(&window);
        if (!QTest::qWaitForWindowActive(&window))
            QTest::qFail("no active window", __FILE__, __LINE__);
    }

    static void prepare(CButtonEx &button, CMenuEx &menu, int x)
    {
        button.setButtonStyle(CButtonEx::BSEX_Glowing);
        button.setText(QStringLiteral("Share"));
        button.setMenu(&menu);
        button.setGeometry(x, 200, 80, 80);
        for (int i = 0; i < 5; ++i)
            menu.addAction(QStringLiteral("Entry %1").arg(i));
    }

    QWidget window;
    CButtonEx first;
    CButtonEx second;
    CMenuEx firstMenu;
    CMenuEx secondMenu;
};

/** The geometries that a widget goes through. */
class GeometryRecorder : public QObject
{
public:
    explicit GeometryRecorder(QWidget *widget) : QObject(widget), m_widget(widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
            geometries.append(m_widget->geometry());
        return false;
    }

    QList<QRect> geometries;

private:
    QWidget *m_widget;
};

} // namespace

class tst_ButtonEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsTold();
    void lowestBitChoosesLook_data();
    void lowestBitChoosesLook();
    void images();
    void clicks();
    void widthFollowsContents_data();
    void widthFollowsContents();
    void widthOfGlowingButton();
    void pulseSwellsAroundCentre();
    void pulseStopsAndStarts();
    void glowFadesInAndOut();
    void onlyEnabledGlowingButtonsGlow();
    void menuNeedsLookAndType();
    void menuOpensOnEntryAndClosesWhenIdle();
    void menuStaysWhileCursorIsOnIt();
    void pressKeepsMenuAway();
    void secondButtonTakesOver();
    void menuMayGo();
    void buttonMayGo();
    void autoRepeatHasNoEffect();
};

void tst_ButtonEx::startsAsTold()
{
    CButtonEx button;
    QCOMPARE(button.font().pixelSize(), 14);
    QCOMPARE(static_cast<QWidget &>(button).font().pixelSize(), 14);
    QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(button.buttonSizeHint(), QSize(0, 0));
    for (const QString &text : {QString(), QStringLiteral("A text much longer than the hint")}) {
        button.setText(text);
        QCOMPARE(button.sizeHint(), QSize(83, 27));
    }
}

void tst_ButtonEx::lowestBitChoosesLook_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<CButtonEx::CButtonStyles>("look");
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << 0 << CButtonEx::BSEX_Normal << "BSEX_Normal";
    QTest::newRow("transparent before glowing") << 3 << CButtonEx::BSEX_Transparent << "BSEX_Transparent";
    QTest::newRow("glowing before tertiary") << 18 << CButtonEx::BSEX_Glowing << "BSEX_Glowing";
    QTest::newRow("active") << 4 << CButtonEx::BSEX_Active << "BSEX_Active";
    QTest::newRow("tray before tertiary") << 24 << CButtonEx::BSEX_Tray << "BSEX_Tray";
    QTest::newRow("tertiary") << 16 << CButtonEx::BSEX_Tertiary << "BSEX_Tertiary";
    QTest::newRow("unknown bit") << 32 << CButtonEx::BSEX_Normal << "BSEX_Normal";
}

void tst_ButtonEx::lowestBitChoosesLook()
{
    QFETCH(int, value);
    QFETCH(CButtonEx::CButtonStyles, look);
    QFETCH(QString, name);
    CButtonEx button;
    button.setButtonStyle(static_cast<CButtonEx::CButtonStyles>(value));
    QCOMPARE(button.buttonStyle(), look);
    QCOMPARE(button.getButtonStyle(), name);
    CButtonEx byName;
    QVERIFY(byName.setProperty("buttonStyle", name));
    QCOMPARE(byName.buttonStyle(), look);
    byName.setButtonStyle(QStringLiteral("bsex_active")); // no name of a look
    QCOMPARE(byName.buttonStyle(), look);
    QCOMPARE(byName.getButtonStyle(), QString());
}

void tst_ButtonEx::images()
{
    CButtonEx button;
    QPixmap pixmap(40, 30);
    pixmap.fill(Qt::red);
    button.resize(10, 10);
    button.setPixmap(pixmap);
    QCOMPARE(button.size(), QSize(10, 10));
    button.setImage(pixmap);
    QCOMPARE(button.size(), QSize(40, 30));

    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("image.png"));
    QVERIFY(pixmap.copy(0, 0, 20, 10).save(path));
    button.setImage(path);
    QCOMPARE(button.size(), QSize(20, 10));
    QCOMPARE(button.pixmap().size(), QSize(20, 10));
    button.setImage(directory.filePath(QStringLiteral("none.png")));
    QVERIFY(button.pixmap().isNull());
    QCOMPARE(button.size(), QSize(0, 0));
}

void tst_ButtonEx::clicks()
{
    CButtonEx button;
    const QSignalSpy spy(&button, &CButtonEx::clicked2);
    button.click();
    QCOMPARE(static_cast<int>(spy.count()), 1);
    QCOMPARE(spy.first().first().value<CButtonEx *>(), &button);
}

void tst_ButtonEx::widthFollowsContents_data()
{
    QTest::addColumn<int>("textWidth");
    QTest::addColumn<int>("imageWidth");
    QTest::addColumn<int>("width");
    QTest::newRow("short") << 30 << 0 << 83;
    QTest::newRow("43") << 43 << 0 << 83;
    QTest::newRow("44") << 44 << 0 << 84;
    QTest::newRow("89") << 89 << 0 << 129;
    QTest::newRow("90") << 90 << 0 << 110;
    QTest::newRow("with image") << 30 << 16 << 103;
}

void tst_ButtonEx::widthFollowsContents()
{
    QFETCH(int, textWidth);
    QFETCH(int, imageWidth);
    QFETCH(int, width);
    CButtonEx button;
    // A text of a wanted width: a letter stretched by the spacing behind it.
    QFont font = button.font();
    const int letter = QFontMetrics(font).horizontalAdvance(QLatin1Char('m'));
    font.setLetterSpacing(QFont::AbsoluteSpacing, textWidth - letter);
    button.setFont(font);
    button.setText(QStringLiteral("m"));
    QCOMPARE(button.fontMetrics().horizontalAdvance(button.text()), textWidth);
    if (imageWidth > 0)
        button.setPixmap(QPixmap(imageWidth, 16));
    button.show();
    QCOMPARE(button.width(), width);
    QCOMPARE(button.minimumWidth(), width);
    QCOMPARE(button.maximumWidth(), width);

    button.setText(QString());
    button.resize(button.width(), 40);
    QCOMPARE(button.width(), width); // an empty text keeps it
}

void tst_ButtonEx::widthOfGlowingButton()
{
    CButtonEx button;
    button.setButtonStyle(CButtonEx::BSEX_Glowing);
    button.resize(200, 50);
    button.show();
    QCOMPARE(button.maximumWidth(), 20);
    button.setPixmap(QPixmap(48, 48));
    button.resize(10, 60);
    QCOMPARE(button.maximumWidth(), 48 + 14);
    button.setText(QStringLiteral("A text wider than the image"));
    button.resize(10, 70);
    QCOMPARE(button.maximumWidth(), button.fontMetrics().horizontalAdvance(button.text()) + 20);
}

void tst_ButtonEx::pulseSwellsAroundCentre()
{
    QWidget window;
    CButtonEx bare(&window);
    CButtonEx labelled(&window);
    labelled.setText(QStringLiteral("Print"));
    bare.setGeometry(50, 50, 60, 30);
    labelled.setGeometry(150, 50, 83, 27);
    window.show();
    const QRect bareAtRest = bare.geometry();
    const QRect labelledAtRest = labelled.geometry();
    const GeometryRecorder recorder(&bare);
    const GeometryRecorder labelledRecorder(&labelled);
    bare.setDefault(true);
    labelled.setDefault(true);
    QTRY_VERIFY(recorder.geometries.contains(bareAtRest.adjusted(-1, -1, 1, 1)));
    // A button with a text decides its own width: it swells upward and downward.
    QTRY_VERIFY(labelledRecorder.geometries.contains(labelledAtRest.adjusted(0, -1, 0, 1)));
    QTRY_COMPARE(static_cast<int>(recorder.geometries.count(bareAtRest)), 2); // two beats, each back to rest
    VERIFY_HOLDS_FOR(bare.geometry() == bareAtRest, 800);                     // and a pause

    // Stopped in the middle of a beat it stays as it is.
    QTRY_COMPARE(bare.geometry(), bareAtRest.adjusted(-1, -1, 1, 1));
    bare.setDefault(false);
    VERIFY_HOLDS_FOR((bare.geometry() == bareAtRest.adjusted(-1, -1, 1, 1)), 250);
}

void tst_ButtonEx::pulseStopsAndStarts()
{
    CButtonEx button;
    button.resize(60, 30);
    button.setButtonStyle(CButtonEx::BSEX_Active);
    button.setDefault(true);
    button.show();
    VERIFY_HOLDS_FOR(button.height() == 30, 250);

    button.setButtonStyle(CButtonEx::BSEX_Normal);
    button.setDefault(true);
    QTRY_COMPARE(button.height(), 32);
    button.setButtonStyle(CButtonEx::BSEX_Active);
    VERIFY_HOLDS_FOR(button.height() == 32, 250); // stopped at its next tick
}

void tst_ButtonEx::glowFadesInAndOut()
{
    CButtonEx button;
    button.setButtonStyle(CButtonEx::BSEX_Glowing);
    QElapsedTimer clock;
    clock.start();
    enter(button);
    QCOMPARE(button.getGlowAlpha(), 0.0F);
    QTRY_VERIFY(button.getGlowAlpha() > 0.95F);
    QVERIFY2(clock.elapsed() >= 180, qPrintable(QString::number(clock.elapsed())));
    VERIFY_HOLDS_FOR(button.getGlowAlpha() > 0.95F && button.getGlowAlpha() < 1.15F, 100); // at rest

    leave(button);
    QTRY_VERIFY(button.getGlowAlpha() < 0.55F);
    QVERIFY(button.getGlowAlpha() > 0.0F);
    enter(button);
    QCOMPARE(button.getGlowAlpha(), 0.0F); // from the start again
    leave(button);
    QTRY_VERIFY(button.getGlowAlpha() < 0.05F);
}

void tst_ButtonEx::onlyEnabledGlowingButtonsGlow()
{
    CButtonEx normal;
    CButtonEx disabled;
    disabled.setButtonStyle(CButtonEx::BSEX_Glowing);
    disabled.setEnabled(false);
    enter(normal);
    enter(disabled);
    VERIFY_HOLDS_FOR(normal.getGlowAlpha() == 0.0F && disabled.getGlowAlpha() == 0.0F, 60);
    leave(disabled);
    VERIFY_HOLDS_FOR(disabled.getGlowAlpha() == 0.0F, 60);
}

void tst_ButtonEx::menuNeedsLookAndType()
{
    CMenuEx houseMenu;
    CButtonEx button;
    button.setMenu(&houseMenu);
    QVERIFY(!button.chevron());
    button.setButtonStyle(CButtonEx::BSEX_Glowing);
    QMenu otherMenu;
    button.setMenu(&otherMenu);
    QVERIFY(!button.chevron());
    button.setMenu(&houseMenu);
    QVERIFY(button.chevron());
    QVERIFY(button.menu() == nullptr); // Qt's own menu button logic stays out
}

void tst_ButtonEx::menuOpensOnEntryAndClosesWhenIdle()
{
    GlowingPair pair;
    enter(pair.first);
    QVERIFY(pair.firstMenu.isVisible());
    QCOMPARE(pair.firstMenu.x(), pair.first.mapToGlobal(QPoint(0, 0)).x());
    // One button height above the button, where it unrolls from its top or from its foot.
    const int top = pair.first.mapToGlobal(QPoint(0, 0)).y() - pair.first.height();
    const int foot = top + pair.firstMenu.sizeHint().height();
    QVERIFY2(pair.firstMenu.y() == top || pair.firstMenu.y() == foot, qPrintable(QString::number(pair.firstMenu.y())));
    QVERIFY(pair.first.isMouseOver());
    QVERIFY(!pair.first.isDown());

    QElapsedTimer clock;
    clock.start();
    leave(pair.first);
    QVERIFY(!pair.first.isMouseOver());
    QTRY_VERIFY_WITH_TIMEOUT(!pair.firstMenu.isVisible(), 3000);
    QVERIFY2(clock.elapsed() >= 1200 && clock.elapsed() < 2500, qPrintable(QString::number(clock.elapsed())));

    enter(pair.first); // armed again
    QVERIFY(pair.firstMenu.isVisible());
}

void tst_ButtonEx::menuStaysWhileCursorIsOnIt()
{
    GlowingPair pair;
    enter(pair.first);
    enter(pair.firstMenu);
    leave(pair.first);
    VERIFY_HOLDS_FOR(pair.firstMenu.isVisible(), 1700);
    leave(pair.firstMenu);
    QTRY_VERIFY_WITH_TIMEOUT(!pair.firstMenu.isVisible(), 3000);
}

void tst_ButtonEx::pressKeepsMenuAway()
{
    GlowingPair pair;
    enter(pair.first);
    QVERIFY(pair.firstMenu.isVisible());
    QTest::mousePress(&pair.first, Qt::LeftButton);
    QVERIFY(!pair.firstMenu.isVisible());
    QTest::mouseRelease(&pair.first, Qt::LeftButton);
    enter(pair.first); // without having left
    QVERIFY(!pair.firstMenu.isVisible());
    leave(pair.first);
    enter(pair.first);
    QVERIFY(pair.firstMenu.isVisible());
}

void tst_ButtonEx::secondButtonTakesOver()
{
    GlowingPair pair;
    enter(pair.first);
    leave(pair.first);
    enter(pair.second);
    QVERIFY(!pair.firstMenu.isVisible());
    QVERIFY(pair.secondMenu.isVisible());
    // The first button's watch ends without closing the other's menu.
    VERIFY_HOLDS_FOR(pair.secondMenu.isVisible(), 1600);

    CButtonEx without(&pair.window);
    without.setButtonStyle(CButtonEx::BSEX_Glowing);
    enter(without);
    QVERIFY(!pair.secondMenu.isVisible());
}

void tst_ButtonEx::menuMayGo()
{
    GlowingPair pair;
    auto *menu = new CMenuEx(&pair.window);
    menu->addAction(QStringLiteral("Entry"));
    pair.first.setMenu(menu);
    enter(pair.first);
    leave(pair.first);
    delete menu;
    QTest::mouseClick(&pair.first, Qt::LeftButton);
    leave(pair.first);
    enter(pair.first);
}

void tst_ButtonEx::buttonMayGo()
{
    GlowingPair pair;
    const auto makeButton = [&pair](CMenuEx &menu) {
        auto *button = new CButtonEx(&pair.window);
        GlowingPair::prepare(*button, menu, 10);
        button->show();
        return button;
    };
    CButtonEx *gone = makeButton(pair.firstMenu);
    enter(*gone);
    QVERIFY(pair.firstMenu.isVisible());
    delete gone;
    pair.second.click(); // would hide the menu that nobody watches any more, had it not been forgotten
    QVERIFY(pair.firstMenu.isVisible());
    pair.firstMenu.hide();

    // Slots of the menu destroy the button: while the menu closes, while it opens.
    const QPointer<CButtonEx> closing = makeButton(pair.secondMenu);
    connect(&pair.secondMenu, &QMenu::aboutToHide, closing, [closing] { delete closing; });
    enter(*closing);
    leave(*closing);
    QTRY_VERIFY_WITH_TIMEOUT(closing.isNull(), 3000);

    const QPointer<CButtonEx> doomed = makeButton(pair.firstMenu);
    connect(&pair.firstMenu, &QMenu::aboutToShow, doomed, [doomed] { delete doomed; });
    enter(*doomed);
    QVERIFY(doomed.isNull() && pair.firstMenu.isVisible());
}

void tst_ButtonEx::autoRepeatHasNoEffect()
{
    CButtonEx button;
    button.setAutoRepeat(true);
    button.setAutoRepeatDelay(1);
    button.setAutoRepeatInterval(1);
    const QSignalSpy spy(&button, &QAbstractButton::clicked);
    QTest::mousePress(&button, Qt::LeftButton);
    VERIFY_HOLDS_FOR(static_cast<int>(spy.count()) == 0, 50);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(static_cast<int>(spy.count()), 1);
}

HOUSE_TEST_MAIN(tst_ButtonEx)
#include "tst_ButtonEx.moc"
