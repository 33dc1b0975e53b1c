#include "helpers/HouseTest.h"

#include "CustomIconButton/CustomIconButton.h"
#include "UiGraphics.h"

#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QMap>

namespace {

QPixmap filled(int width, int height, const QColor &color = Qt::red)
{
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

/** "flat", "raised" or "sunken", by the four lines and where they end. */
QString lookOf(CCustomIconButton &button)
{
    const QImage image = button.grab().toImage();
    const QColor light = UIGGetColor(QStringLiteral("UIGCLR_UIF_CUST_ICN_ENTER_TL"));
    const QColor shadow = UIGGetColor(QStringLiteral("UIGCLR_UIF_CUST_ICN_ENTER_BR"));
    QString letters;
    for (const QPoint &point : {QPoint(19, 0), QPoint(0, 19), QPoint(20, 19), QPoint(0, 20), QPoint(21, 0)}) {
        const QColor color = image.pixelColor(point);
        letters += QLatin1Char(color == light ? 'l' : color == shadow ? 's' : '-');
    }
    static const QMap<QString, QString> looks = {{QStringLiteral("-----"), QStringLiteral("flat")},
                                                 {QStringLiteral("llss-"), QStringLiteral("raised")},
                                                 {QStringLiteral("sslls"), QStringLiteral("sunken")}};
    return looks.value(letters, letters);
}

void pointAt(const CCustomIconButton &button, const QPoint &point)
{
    QCursor::setPos(button.mapToGlobal(point));
    QCoreApplication::processEvents(); // the enter or leave that this brings shall not come in between
}

void press(CCustomIconButton &button, Qt::MouseButton mouseButton, const QPoint &at = QPoint(11, 11))
{
    pointAt(button, at);
    QTest::mousePress(&button, mouseButton, Qt::NoModifier, at);
}

void release(CCustomIconButton &button, Qt::MouseButton mouseButton, const QPoint &at)
{
    pointAt(button, at);
    QTest::mouseRelease(&button, mouseButton, Qt::NoModifier, at);
}

} // namespace

class tst_CustomIconButton : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hasOneSize();
    void iconPlaces_data();
    void iconPlaces();
    void greysDisabledIcons_data();
    void greysDisabledIcons();
    void clicks_data();
    void clicks();
    void pressLooks();
    void disabledWhilePressed();
    void toolTips();
    void keyboard();
    void keyboardFocusShows();
    void assistiveTechnology();

private:
    std::unique_ptr<QWidget> m_window;
    CCustomIconButton *m_button = nullptr;
    int m_clicks = 0;
};

void tst_CustomIconButton::init()
{
    HouseTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->resize(200, 200);
    m_button = new CCustomIconButton(m_window.get());
    m_button->move(80, 80);
    m_clicks = 0;
    connect(m_button, &CCustomIconButton::customClicked, this, [this] { ++m_clicks; });
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    pointAt(*m_button, QPoint(-50, -50));
}

void tst_CustomIconButton::cleanup()
{
    m_window.reset();
    HouseTest::cleanup();
}

void tst_CustomIconButton::hasOneSize()
{
    QCOMPARE(m_button->minimumSize(), QSize(22, 22));
    QCOMPARE(m_button->maximumSize(), QSize(22, 22));
    m_button->DrawIcons(nullptr);
}

void tst_CustomIconButton::iconPlaces_data()
{
    QTest::addColumn<QPixmap>("icon");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QRect>("place");
    QTest::newRow("none") << QPixmap() << 1.0 << QRect();
    QTest::newRow("15 wide") << filled(15, 16) << 1.0 << QRect(5, 5, 15, 16);
    QTest::newRow("16 wide") << filled(16, 11) << 1.0 << QRect(1, 4, 16, 11);
    QTest::newRow("higher than wide") << filled(9, 17) << 1.0 << QRect(5, 5, 9, 17);
    QTest::newRow("small, double density") << filled(30, 20) << 2.0 << QRect(5, 5, 15, 10);
    QTest::newRow("double density") << filled(32, 20) << 2.0 << QRect(1, 4, 16, 10);
}

void tst_CustomIconButton::iconPlaces()
{
    QFETCH(QPixmap, icon);
    QFETCH(qreal, ratio);
    QFETCH(QRect, place);
    icon.setDevicePixelRatio(ratio);
    m_button->AddIcons(icon);
    const QImage image = Picture::of(QSize(40, 40), [this](QPainter *painter) { m_button->DrawIcons(painter); });
    QCOMPARE(Picture::boundsOf(image, Qt::red), place);
    QVERIFY(!Picture::paintsOutside(image, place));
}

void tst_CustomIconButton::greysDisabledIcons_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("expected");
    const int grey = qGray(200, 100, 0);
    QTest::newRow("opaque") << 16 << QColor(200, 100, 0) << QColor(grey, grey, grey, 128);
    QTest::newRow("alpha 200") << 16 << QColor(200, 100, 0, 200) << QColor(grey, grey, grey, 128);
    QTest::newRow("alpha 60") << 16 << QColor(255, 255, 255, 60) << QColor(255, 255, 255, 60);
    QTest::newRow("clear") << 16 << QColor(0, 0, 0, 0) << QColor(0, 0, 0, 0);
    QTest::newRow("small") << 15 << QColor(200, 100, 0) << QColor(200, 100, 0);
}

void tst_CustomIconButton::greysDisabledIcons()
{
    QFETCH(int, width);
    QFETCH(QColor, color);
    QFETCH(QColor, expected);
    m_button->setEnabled(false);
    m_button->AddIcons(filled(width, 16, Qt::green)); // another one before, whose grey picture must go
    m_button->grab();
    m_button->AddIcons(filled(width, 16, color));
    const QImage image = Picture::of(QSize(22, 22), [this](QPainter *painter) { m_button->DrawIcons(painter); });
    const QColor actual = image.pixelColor(10, 10);
    QCOMPARE(actual.alpha(), expected.alpha());
    for (const auto channel : {&QColor::red, &QColor::green, &QColor::blue})
        QVERIFY2(qAbs((actual.*channel)() - (expected.*channel)()) <= 1, qPrintable(actual.name()));
}

void tst_CustomIconButton::clicks_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("releasePoint");
    QTest::addColumn<int>("clicks");
    QTest::newRow("left") << int(Qt::LeftButton) << QPoint(11, 11) << 1;
    QTest::newRow("first inner pixel") << int(Qt::LeftButton) << QPoint(1, 1) << 1;
    QTest::newRow("last inner pixel") << int(Qt::LeftButton) << QPoint(20, 20) << 1;
    QTest::newRow("first column") << int(Qt::LeftButton) << QPoint(0, 11) << 0;
    QTest::newRow("last row") << int(Qt::LeftButton) << QPoint(11, 21) << 0;
    QTest::newRow("outside") << int(Qt::LeftButton) << QPoint(40, 11) << 0;
    QTest::newRow("right") << int(Qt::RightButton) << QPoint(11, 11) << 0;
    QTest::newRow("middle") << int(Qt::MiddleButton) << QPoint(11, 11) << 0;
}

void tst_CustomIconButton::clicks()
{
    QFETCH(int, button);
    QFETCH(QPoint, releasePoint);
    const auto mouseButton = Qt::MouseButton(button);
    press(*m_button, mouseButton);
    QCOMPARE(lookOf(*m_button), QStringLiteral("sunken"));
    QCOMPARE(m_clicks, 0);
    release(*m_button, mouseButton, releasePoint);
    QTEST(m_clicks, "clicks");
    QTRY_COMPARE(lookOf(*m_button), QStringLiteral("flat"));
}

void tst_CustomIconButton::pressLooks()
{
    Pointer::enter(*m_button);
    QCOMPARE(lookOf(*m_button), QStringLiteral("raised"));
    press(*m_button, Qt::LeftButton);
    QCOMPARE(lookOf(*m_button), QStringLiteral("sunken"));
    Pointer::leave(*m_button);
    QCOMPARE(lookOf(*m_button), QStringLiteral("raised"));
    pointAt(*m_button, QPoint(60, 60));
    // Where the pointer is by now decides, not what the event says.
    QTest::mouseRelease(m_button, Qt::LeftButton, Qt::NoModifier, QPoint(11, 11));
    QCOMPARE(lookOf(*m_button), QStringLiteral("flat"));
    QCOMPARE(m_clicks, 0);
    Pointer::enter(*m_button);
    Pointer::leave(*m_button);
    QCOMPARE(lookOf(*m_button), QStringLiteral("flat"));
}

void tst_CustomIconButton::disabledWhilePressed()
{
    press(*m_button, Qt::LeftButton);
    m_button->setEnabled(false);
    QCOMPARE(lookOf(*m_button), QStringLiteral("flat"));
    release(*m_button, Qt::LeftButton, QPoint(11, 11));
    press(*m_button, Qt::LeftButton);
    release(*m_button, Qt::LeftButton, QPoint(11, 11));
    QCOMPARE(m_clicks, 0);
    m_button->setEnabled(true);
    press(*m_button, Qt::LeftButton);
    m_button->hide();
    m_button->show();
    Pointer::leave(*m_button);
    QCOMPARE(lookOf(*m_button), QStringLiteral("flat"));
}

void tst_CustomIconButton::toolTips()
{
    m_button->setToolTip(QStringLiteral("lost"));
    Pointer::enter(*m_button);
    QCOMPARE(m_button->toolTip(), QString());
    m_button->setProperty("toolTipText", QStringLiteral("Rotate"));
    QCOMPARE(m_button->toolTip(), QStringLiteral("Rotate"));
    m_button->setToolTip(QStringLiteral("lost"));
    Pointer::leave(*m_button);
    Pointer::enter(*m_button);
    QCOMPARE(m_button->toolTip(), QStringLiteral("Rotate"));
    QCOMPARE(m_button->toolTipText(), QStringLiteral("Rotate"));
}

void tst_CustomIconButton::keyboard()
{
    QTest::keyPress(m_button, Qt::Key_Space);
    QCOMPARE(lookOf(*m_button), QStringLiteral("sunken"));
    QKeyEvent repeat(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(m_button, &repeat);
    QCOMPARE(m_clicks, 0);
    QTest::keyRelease(m_button, Qt::Key_Space);
    QCOMPARE(m_clicks, 1);
    QCOMPARE(lookOf(*m_button), QStringLiteral("flat"));
    QTest::keyRelease(m_button, Qt::Key_Space); // of a press elsewhere
    QCOMPARE(m_clicks, 1);

    QTest::keyPress(m_button, Qt::Key_Space);
    m_button->clearFocus();
    QCOMPARE(lookOf(*m_button), QStringLiteral("flat"));
    QTest::keyRelease(m_button, Qt::Key_Space);
    QCOMPARE(m_clicks, 1);

    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(m_button, &letter);
    QVERIFY(!letter.isAccepted()); // for the parent
}

void tst_CustomIconButton::keyboardFocusShows()
{
    auto *other = new QWidget(m_window.get());
    other->setFocusPolicy(Qt::StrongFocus);
    other->show();
    other->setFocus();
    QCOMPARE(lookOf(*m_button), QStringLiteral("flat"));
    QTest::keyClick(other, Qt::Key_Tab);
    QVERIFY(m_button->hasFocus());
    QCOMPARE(lookOf(*m_button), QStringLiteral("raised"));
    QTest::keyClick(m_button, Qt::Key_Tab);
    QCOMPARE(lookOf(*m_button), QStringLiteral("flat"));
    press(*m_button, Qt::LeftButton);
    QVERIFY(!m_button->hasFocus());
}

void tst_CustomIconButton::assistiveTechnology()
{
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(m_button);
    const QString pressAction = QAccessibleActionInterface::pressAction();
    QCOMPARE(face->role(), QAccessible::Button);
    m_button->setToolTipText(QStringLiteral("Nach links drehen"));
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Nach links drehen"));
    QCOMPARE(face->text(QAccessible::Description), QString());
    m_button->setAccessibleName(QStringLiteral("Rotate"));
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Rotate"));
    QCOMPARE(face->text(QAccessible::Description), QStringLiteral("Nach links drehen"));

    QVERIFY(face->actionInterface()->actionNames().contains(pressAction));
    face->actionInterface()->doAction(pressAction);
    QTRY_COMPARE(m_clicks, 1);
    m_button->setEnabled(false);
    QVERIFY(!face->actionInterface()->actionNames().contains(pressAction));
    face->actionInterface()->doAction(pressAction);
    VERIFY_HOLDS_FOR(m_clicks == 1, 50);
}

HOUSE_TEST_MAIN(tst_CustomIconButton)
#include "tst_CustomIconButton.moc"
