#include "helpers/HouseTest.h"

#include "MessageBoxEx/TitleBar/CustomIconButtons.h"
#include "MessageBoxEx/TitleBar/TitleBar.h"
#include "UiGraphics.h"

#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QTranslator>
#include <QVBoxLayout>

namespace {

/** Stands for the message box. */
class Box : public QWidget
{
    Q_OBJECT

public:
    Box() : bar(new CTitleBar(this))
    {
        setWindowFlags(Qt::SplashScreen);
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(bar);
        column->addStretch();
        resize(300, 100);
    }
    CCustomIconButtons *button(int index) const { return bar->findChildren<CCustomIconButtons *>().at(index); }

    CTitleBar *bar;
    QStringList told;

public Q_SLOTS:
    void slot_close() { told.append(QStringLiteral("slot_close")); }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        told.append(QStringLiteral("close"));
        QWidget::closeEvent(event);
    }
    void mousePressEvent(QMouseEvent *event) override
    {
        Q_UNUSED(event)
        told.append(QStringLiteral("press"));
    }
};

constexpr int minimizeIndex = 0;
constexpr int maximizeIndex = 1;
constexpr int closeIndex = 2;

QImage imageOf(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage artwork(const char *name)
{
    const QPixmap pixmap = UIGGetPixmap(QLatin1String(name));
    return Picture::of(pixmap.size(), [&pixmap](QPainter *painter) { painter->drawPixmap(0, 0, pixmap); });
}

/** The icon that a button draws, without its bevel. */
QImage iconOf(CCustomIconButtons *button)
{
    return Picture::of(
        QSize(10, 10),
        [button](QPainter *painter) {
            painter->translate(-3, -3);
            button->DrawIcons(painter);
        });
}

QString nameOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

/** Puts a text between brackets. */
class Brackets : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *comment, int count) const override
    {
        Q_UNUSED(comment)
        Q_UNUSED(count)
        return qstrcmp(context, "CTitleBar") == 0 ? QStringLiteral("[%1]").arg(QLatin1String(text)) : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_TitleBar : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void flagsShowButtons();
    void captionWidensTheBar();
    void paintsGradientAndCaption();
    void hardEdge();
    void buttonSequences();
    void cursors();
    void closeTellsBoth();
    void buttonMayDeleteItsBox();
    void maximizesRestoresAndMinimizes();
    void staleMaximizedFlag();
    void namesAreTranslated();
    void withoutBoxOrBitmap();
};

void tst_TitleBar::flagsShowButtons()
{
    for (int flags = 0; flags < 8; ++flags) {
        Box box;
        box.bar->setMaximumHeight(30);
        box.bar->setTitleFlags(7);
        box.bar->setTitleFlags(flags);
        box.show();
        QCOMPARE(box.bar->size(), QSize(300, 30));
        int right = -1;
        for (int i = 0; i < 3; ++i) {
            const CCustomIconButtons *button = box.button(i);
            QCOMPARE(button->isVisible(), (flags & (1 << i)) != 0);
            if (button->isHidden())
                continue;
            QVERIFY(button->x() > right && button->x() > 150);
            QCOMPARE(button->geometry().center().y(), 14);
            right = button->geometry().right();
        }
    }
}

void tst_TitleBar::captionWidensTheBar()
{
    Box box;
    box.bar->setCaption(QStringLiteral("i"));
    QCOMPARE(box.bar->minimumWidth(), 0);
    const QString text = QStringLiteral("Herunterladen und drucken");
    const int needed = QFontMetrics(UIGGetFont(14, -1, false)).boundingRect(text).width() + 3 * 17;
    box.bar->resize(needed, 30);
    box.bar->setCaption(text);
    QCOMPARE(box.bar->minimumWidth(), 0);
    box.bar->resize(needed - 1, 30);
    box.bar->setCaption(text);
    QCOMPARE(box.bar->minimumWidth(), needed);
    box.resize(10, 10);
    box.show();
    QVERIFY(box.width() >= needed);
}

void tst_TitleBar::paintsGradientAndCaption()
{
    Box box;
    box.bar->setTitleFlags(0);
    const QImage image = imageOf(box.bar);
    const auto isAlmost = [&image](int y, const char *key) {
        return qAbs(image.pixelColor(5, y).red() - UIGGetColor(QLatin1String(key)).red()) <= 3;
    };
    QVERIFY(isAlmost(0, "UIGCLR_TITLEBAR_GRAD1") && isAlmost(28, "UIGCLR_TITLEBAR_GRAD2"));
    for (const int x : {0, box.bar->width() - 1})
        QCOMPARE(image.pixelColor(x, 29).name(), UIGGetColor(QStringLiteral("UIGCLR_TITLEBAR_PEN")).name());

    box.bar->setCaption(QStringLiteral("MMM"));
    const QImage withCaption = imageOf(box.bar);
    QRect changed;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != withCaption.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
    QVERIFY2(qAbs(changed.center().x() - box.bar->width() / 2) <= 2 && qAbs(changed.center().y() - 14) <= 3,
             "not in the middle");
}

void tst_TitleBar::hardEdge()
{
    Box box;
    box.bar->setTitleFlags(0);
    const QImage soft = imageOf(box.bar);
    box.bar->setDropShadow(true);
    QCOMPARE(imageOf(box.bar), soft);
    box.bar->setDropShadow(false);
    const QImage hard = imageOf(box.bar);
    const int first = box.bar->width() - 6;
    const char *const expected[] = {"#acacac", "#acacac", "#a0a0a0", "#808080", "#808080", "#808080"};
    for (int i = 0; i < 6; ++i)
        for (const int y : {0, 15, 29})
            QCOMPARE(hard.pixelColor(first + i, y).name(), QLatin1String(expected[i]));
    QCOMPARE(hard.copy(0, 0, first, 30), soft.copy(0, 0, first, 30));
    box.bar->setDropShadow(true);
    QCOMPARE(imageOf(box.bar), soft);
}

void tst_TitleBar::buttonSequences()
{
    Box box;
    CCustomIconButtons *button = box.button(closeIndex);
    disconnect(button, nullptr, &box, nullptr);
    int clicks = 0;
    connect(button, &CCustomIconButtons::customClicked, this, [&] { ++clicks; });
    const QColor light = UIGGetColor(QStringLiteral("UIGCLR_WHITE"));
    const QColor shadow = UIGGetColor(QStringLiteral("UIGCLR_TEXT_DISABLED"));
    const auto corner = [button](int x, int y) {
        return imageOf(button).pixelColor(x, y);
    };
    const QImage flat = imageOf(button);

    Pointer::enter(*button);
    QVERIFY(corner(0, 8) == light && corner(15, 8) == shadow && corner(8, 15) == shadow);
    for (const auto mouseButton : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(button, mouseButton);
        QVERIFY(corner(0, 8) == shadow && corner(16, 0) == shadow && corner(15, 8) == light);
    }
    QCOMPARE(clicks, 0);
    Pointer::leave(*button);
    QCOMPARE(imageOf(button), flat);
    QTest::mousePress(button, Qt::LeftButton);
    QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(200, 200));
    QCOMPARE(clicks, 1);
    QVERIFY(corner(0, 8) == light);
    QVERIFY(box.told.isEmpty()); // the bar's window is not dragged by its buttons
    box.show();
    QCOMPARE(imageOf(button), flat);
}

void tst_TitleBar::cursors()
{
    Box box;
    CCustomIconButtons *button = box.button(closeIndex);
    box.setCursor(Qt::WaitCursor);
    Pointer::enter(*box.bar);
    QCOMPARE(box.bar->cursor().shape(), Qt::WaitCursor);
    box.bar->changeCursorShape(true);
    Pointer::enter(*box.bar);
    QCOMPARE(box.bar->cursor().shape(), Qt::SizeAllCursor);
    Pointer::enter(*button);
    QCOMPARE(button->cursor().shape(), Qt::ArrowCursor);
    Pointer::leave(*button);
    QCOMPARE(button->cursor().shape(), Qt::SizeAllCursor);
    Pointer::leave(*box.bar);
    QCOMPARE(box.bar->cursor().shape(), Qt::SizeAllCursor);

    QTest::mousePress(box.bar, Qt::LeftButton);
    QCOMPARE(box.told, QStringList(QStringLiteral("press")));
}

void tst_TitleBar::closeTellsBoth()
{
    Box box;
    box.show();
    QTest::mouseClick(box.button(closeIndex), Qt::LeftButton);
    QCOMPARE(box.told.join(QLatin1Char(',')), QStringLiteral("close,slot_close"));
    QVERIFY(!box.isVisible());
}

void tst_TitleBar::buttonMayDeleteItsBox()
{
    const QPointer<Box> box = new Box;
    connect(box->button(closeIndex), &CCustomIconButtons::customClicked, this, [box] { delete box; });
    QTest::mouseClick(box->button(closeIndex), Qt::LeftButton);
    QVERIFY(box.isNull());
}

void tst_TitleBar::maximizesRestoresAndMinimizes()
{
    Box box;
    box.setGeometry(50, 60, 300, 100);
    box.setMaximumSize(QApplication::primaryScreen()->availableSize() - QSize(100, 50));
    box.bar->setTitleFlags(7);
    box.show();
    CCustomIconButtons *button = box.button(maximizeIndex);
    QCOMPARE(iconOf(button), artwork("Maximize.png"));
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(box.geometry(),
                 QRect(QApplication::primaryScreen()->availableGeometry().topLeft(), box.maximumSize()));
    QCOMPARE(iconOf(button), artwork("restore.png"));
    QCOMPARE(nameOf(button), QStringLiteral("Restore"));
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(box.geometry(), QRect(50, 60, 300, 100));
    QVERIFY(!box.isMaximized());
    QCOMPARE(iconOf(button), artwork("Maximize.png"));
    QCOMPARE(nameOf(button), QStringLiteral("Maximize"));
    QTest::mouseClick(box.button(minimizeIndex), Qt::LeftButton);
    QVERIFY(box.isMinimized());
}

void tst_TitleBar::staleMaximizedFlag()
{
    Box box;
    box.show();
    box.bar->on_but_maximize_clicked();
    box.showNormal();
    QCoreApplication::processEvents();
    box.setGeometry(20, 20, 333, 111);
    box.bar->on_but_maximize_clicked();
    QCOMPARE(iconOf(box.button(maximizeIndex)), artwork("Maximize.png"));
    VERIFY_HOLDS_FOR(box.geometry() == QRect(20, 20, 333, 111) && !box.isMaximized(), 100);
}

void tst_TitleBar::namesAreTranslated()
{
    Box box;
    box.bar->setCaption(QStringLiteral("Print"));
    QCOMPARE(nameOf(box.bar), QStringLiteral("Print"));
    QCOMPARE(QAccessible::queryAccessibleInterface(box.bar)->role(), QAccessible::TitleBar);
    Brackets brackets;
    QCoreApplication::installTranslator(&brackets);
    QCoreApplication::sendPostedEvents();
    QStringList names;
    for (int i = 0; i < 3; ++i)
        names.append(nameOf(box.button(i)));
    QCOMPARE(names.join(QLatin1Char(',')), QStringLiteral("[Minimize],[Maximize],[Close]"));
}

void tst_TitleBar::withoutBoxOrBitmap()
{
    CTitleBar bar(nullptr);
    bar.on_but_minimize_clicked();
    bar.on_but_maximize_clicked();
    CCustomIconButtons *button = bar.findChildren<CCustomIconButtons *>().at(closeIndex);
    button->AddIcons(UIGGetPixmap(QStringLiteral("missing.png")));
    int clicks = 0;
    connect(button, &CCustomIconButtons::customClicked, this, [&] { ++clicks; });
    bar.grab();
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(clicks, 1);
}

HOUSE_TEST_MAIN(tst_TitleBar)
#include "tst_TitleBar.moc"
