#include "helpers/HouseTest.h"

#include "TitleButtonEx/TitleButton.h"

#include <QAccessible>
#include <QPixmap>

namespace {

constexpr char light[] = "#ffffffff";
constexpr char shadow[] = "#ffaeaeae";
constexpr char clear[] = "#00000000";

/** The colours at the middle of the top, left, right and bottom line, and at the end of the top one. */
QStringList linesOf(CTitleButton &button)
{
    const QImage image = Picture::of(QSize(17, 17), [&button](QPainter *painter) {
        button.render(painter, QPoint(), QRegion(), QWidget::RenderFlags());
    });
    QStringList colors;
    for (const QPoint &point : {QPoint(8, 0), QPoint(0, 8), QPoint(15, 8), QPoint(8, 15), QPoint(16, 0)})
        colors.append(Picture::colorAt(image, point.x(), point.y()));
    return colors;
}

const QStringList flat = {clear, clear, clear, clear, clear};
const QStringList raised = {light, light, shadow, shadow, clear};
const QStringList sunken = {shadow, shadow, light, light, shadow};

} // namespace

class tst_TitleButton : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheCallersIcon();
    void sequences();
    void shownAgain();
    void assistiveTechnology();
};

void tst_TitleButton::readsTheCallersIcon()
{
    CTitleButton button;
    QCOMPARE(button.minimumSize(), QSize(17, 17));
    QCOMPARE(button.maximumSize(), QSize(17, 17));
    QCOMPARE(button.focusPolicy(), Qt::NoFocus);
    const auto picture = [&button] {
        return Picture::of(QSize(17, 17), [&button](QPainter *painter) { button.DrawIcons(painter); });
    };
    QVERIFY(Picture::isBlank(picture()));
    button.grab();
    QPixmap icon(10, 9);
    icon.fill(Qt::red);
    button.AddIcons(&icon);
    button.setEnabled(false); // which does not grey it
    QCOMPARE(Picture::boundsOf(picture(), Qt::red), QRect(3, 3, 10, 9));
    QVERIFY(!Picture::paintsOutside(picture(), QRect(3, 3, 10, 9)));
    icon.fill(Qt::blue);
    QCOMPARE(picture().pixelColor(3, 3), QColor(Qt::blue));
    icon = QPixmap();
    QVERIFY(Picture::isBlank(picture()));
    button.AddIcons(nullptr);
    button.DrawIcons(nullptr);
    QVERIFY(Picture::isBlank(picture()));
}

void tst_TitleButton::sequences()
{
    QWidget window;
    CTitleButton button(&window);
    window.setCursor(Qt::WaitCursor);
    int clicks = 0;
    connect(&button, &CTitleButton::customClicked, this, [&clicks] { ++clicks; });
    QCOMPARE(linesOf(button), flat);
    Pointer::enter(button);
    QCOMPARE(linesOf(button), raised);
    QCOMPARE(button.cursor().shape(), Qt::WaitCursor);
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(linesOf(button), sunken);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(300, 300));
    QCOMPARE(clicks, 1);
    QCOMPARE(linesOf(button), raised);
    Pointer::leave(button);
    QCOMPARE(linesOf(button), flat);

    for (const auto mouseButton : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(&button, mouseButton);
        QCOMPARE(linesOf(button), sunken);
    }
    QCOMPARE(clicks, 1);
    Pointer::enter(button);
    QCOMPARE(linesOf(button), raised);
}

void tst_TitleButton::shownAgain()
{
    QWidget window;
    window.resize(300, 300);
    CTitleButton button(&window);
    button.move(200, 200);
    connect(&button, &CTitleButton::customClicked, &window, &QWidget::close);
    window.show();
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!window.isVisible());
    QCOMPARE(linesOf(button), raised);
    window.show();
    QCOMPARE(linesOf(button), flat);
}

void tst_TitleButton::assistiveTechnology()
{
    CTitleButton button;
    button.setToolTip(QStringLiteral("Help"));
    int clicks = 0;
    connect(&button, &CTitleButton::customClicked, this, [&clicks] { ++clicks; });
    Pointer::enter(button);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&button);
    QCOMPARE(accessible->role(), QAccessible::Button);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Help"));
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(clicks, 1);
}

HOUSE_TEST_MAIN(tst_TitleButton)
#include "tst_TitleButton.moc"
