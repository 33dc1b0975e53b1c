#include "helpers/HouseTest.h"

#include "ProgressBarEx/ProgressBarDialogEx.h"
#include "ProgressBarEx/ProgressBarEx.h"
#include "UiGraphics.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QPaintEvent>
#include <QScreen>
#include <QSignalSpy>

#include <cmath>
#include <memory>

namespace {

// The bar looks at no timer's identity: any timer event is a step. Nothing else runs meanwhile.
void step(CProgressBarEx &bar, int steps)
{
    for (int i = 0; i < steps; ++i) {
        QTimerEvent event(0);
        QCoreApplication::sendEvent(&bar, &event);
    }
}

QImage pictureOf(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

// The panel as a child: what it leaves clear stays clear.
QImage panelPicture(CProgressBarDialogEx &panel)
{
    return Picture::of(
        panel.size(),
        [&panel](QPainter *painter) { panel.render(painter, QPoint(), QRegion(), QWidget::DrawChildren); });
}

QImage rainbow()
{
    return UIGGetImage(QStringLiteral("status-rainbow.png")).convertToFormat(QImage::Format_ARGB32);
}

int difference(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

// The greatest step of colour from one column to another, over all rows.
int columnStep(const QImage &image, int from, int to)
{
    int greatest = 0;
    for (int y = 0; y < image.height(); ++y)
        greatest = std::max(greatest, difference(image.pixel(from, y), image.pixel(to, y)));
    return greatest;
}

} // namespace

class tst_ProgressBarEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void artworkWrapsWithoutSeam();
    void barScrollsAndWraps();
    void tickPaintsTheBarAlone();
    void barBesideItsBitmapStaysClear();
    void panelFace();
    void panelCornersAreCut();
    void panelWidensAndNeverShrinks();
    void panelFollowsAnApplicationsResize();
    void panelTickPaintsTheStripAlone();
    void panelHangsOnTheTopmostWindow();
    void panelIsShownInTheMiddle();
    void closeDialogTellsBeforeItHides();
    void autoClose();
    void autoCloseThatIsSetTwice();
    void closedMayDestroyThePanel();
    void shownAgainItScrolls();
    void screenReaders();
};

void tst_ProgressBarEx::artworkWrapsWithoutSeam()
{
    for (const char *file : {"status-rainbow.png", "status-rainbow@2x.png"}) {
        const QImage image = UIGGetImage(QLatin1String(file));
        QVERIFY(!image.isNull());
        int greatest = 0;
        for (int x = 1; x < image.width(); ++x)
            greatest = std::max(greatest, columnStep(image, x - 1, x));
        const int seam = columnStep(image, image.width() - 1, 0);
        QVERIFY2(seam <= greatest && greatest <= 6, qPrintable(QStringLiteral("%1 of %2").arg(seam).arg(greatest)));
        for (int x = 0; x < image.width(); ++x) {
            QVERIFY(columnStep(image, x, (x + image.width() / 2) % image.width()) <= 1); // both rounds are equal
            QCOMPARE(qAlpha(image.pixel(x, 0)), 255);
        }
    }
}

void tst_ProgressBarEx::barScrollsAndWraps()
{
    CProgressBarEx bar;
    QCOMPARE(bar.size(), QSize(200, 10));
    bar.resize(1500, 20); // wider than the bitmap: its first and its second copy show
    const QImage strip = rainbow();
    int offset = 0;
    for (const int steps : {0, 1, 1, 400, 557, 1, 1}) {
        step(bar, steps);
        offset = (offset + steps) % strip.width();
        const QImage picture = pictureOf(bar);
        for (int x = 0; x < picture.width(); ++x)
            QCOMPARE(picture.pixel(x, 12), strip.pixel((x - offset + 2 * strip.width()) % strip.width(), 12));
    }
    QCOMPARE(offset, 1); // so it has come round
}

void tst_ProgressBarEx::tickPaintsTheBarAlone()
{
    QWidget window;
    window.resize(300, 100);
    CProgressBarEx bar(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const PaintCounter ofWindow(&window);
    const PaintCounter ofBar(&bar);
    QTRY_VERIFY(ofBar.paints >= 20);
    QCOMPARE(ofWindow.paints, 0);
    QCOMPARE(ofBar.region, QRegion(bar.rect()));
    bar.hide();
    QCoreApplication::processEvents();
    const int before = ofBar.paints;
    step(bar, 3);
    QCOMPARE(ofBar.paints, before);
    // In an opaque bar, what the bitmap does not reach would show what happened to be there.
    bar.resize(200, 40);
    bar.grab();
    QVERIFY(!bar.testAttribute(Qt::WA_OpaquePaintEvent));
    bar.resize(200, 32);
    bar.grab();
    QVERIFY(bar.testAttribute(Qt::WA_OpaquePaintEvent));
}

void tst_ProgressBarEx::barBesideItsBitmapStaysClear()
{
    CProgressBarEx bar;
    bar.resize(2000, 40);
    const QImage picture =
        Picture::of(bar.size(), [&bar](QPainter *painter) { bar.render(painter, QPoint(), QRegion(), {}); });
    QCOMPARE(Picture::colorAt(picture, 1919, 31).left(3), QStringLiteral("#ff"));
    QVERIFY(!Picture::paintsOutside(picture, QRect(0, 0, 1920, 32)));
}

void tst_ProgressBarEx::panelFace()
{
    QWidget window;
    CProgressBarDialogEx panel(QString(), &window);
    QCOMPARE(panel.size(), QSize(388, 102));
    QCOMPARE(panel.label(), QString());
    const QImage picture = panelPicture(panel);
    QCOMPARE(picture.pixelColor(194, 40), UIGGetColor(QStringLiteral("UIGCLR_IMPUI_DS_LNRGRAD5")));
    QCOMPARE(picture.pixelColor(10, 40), UIGGetColor(QStringLiteral("UIGCLR_IMPUI_DS_LNRGRAD1")));
    QCOMPARE(qAlpha(picture.pixel(200, 4)), 0);
    // The line at the top lies over the face, and beyond it over nothing but the border.
    QVERIFY(picture.pixel(200, 5) != picture.pixel(200, 6));
    // The strip stands on the last rows of the face and on what is below; the shadow fades around both.
    QVERIFY(picture.pixelColor(195, 74) != picture.pixelColor(195, 75));
    QCOMPARE(qAlpha(picture.pixel(195, 90)), 255);
    for (int y = 93; y < 101; ++y)
        QVERIFY(qAlpha(picture.pixel(195, y)) < qAlpha(picture.pixel(195, y - 1)));
    // The stretched middle of the shadow meets the two ends, but for the rounding of a gradient.
    for (const int x : {18, 363})
        for (int y = 91; y < 102; ++y)
            QVERIFY(std::abs(qAlpha(picture.pixel(x, y)) - qAlpha(picture.pixel(x + 1, y))) <= 1);

    panel.setLabel(QStringLiteral("Printing"));
    const QImage withText = panelPicture(panel);
    QRect text;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < 75; ++y)
            if (withText.pixel(x, y) != picture.pixel(x, y))
                text |= QRect(x, y, 1, 1);
    }
    QVERIFY(text.width() > 30 && text.height() > 8 && text.height() < 20);
    QVERIFY(std::abs(text.center().x() - 194) < 4 && std::abs(text.center().y() - 41) < 5);
}

void tst_ProgressBarEx::panelCornersAreCut()
{
    QWidget window;
    CProgressBarDialogEx panel(QStringLiteral("Printing"), &window);
    const QImage picture = panelPicture(panel);
    for (const int x : {8, 374}) {
        QCOMPARE(qAlpha(picture.pixel(x, 80)), 255);
        QVERIFY2(qAlpha(picture.pixel(x, 90)) < 100, "the strip shows in the corner");
    }
    for (const int x : {16, 366})
        QCOMPARE(qAlpha(picture.pixel(x, 90)), 255);
}

void tst_ProgressBarEx::panelWidensAndNeverShrinks()
{
    QWidget window;
    const QString longText(QStringLiteral("Die ausgewählten Fotos werden für den Druck vorbereitet und übertragen"));
    CProgressBarDialogEx panel(QStringLiteral("Short"), &window);
    const int textWidth = panel.fontMetrics().size(Qt::TextSingleLine, longText).width();
    QVERIFY(textWidth + 60 > 388);
    panel.setLabel(longText);
    QCOMPARE(panel.size(), QSize(textWidth + 60, 102));
    const QImage picture = panelPicture(panel);
    QCOMPARE(qAlpha(picture.pixel(panel.width() - 30, 90)), 255); // the strip has come along
    QVERIFY(qAlpha(picture.pixel(panel.width() - 14, 90)) < 100);
    // The gradient keeps its first width.
    QCOMPARE(picture.pixelColor(400, 20), UIGGetColor(QStringLiteral("UIGCLR_IMPUI_DS_LNRGRAD1")));
    panel.setLabel(QStringLiteral("Short"));
    QCOMPARE(panel.width(), textWidth + 60);
    const CProgressBarDialogEx wideFromTheStart(longText, &window);
    QCOMPARE(wideFromTheStart.width(), textWidth + 60);
}

void tst_ProgressBarEx::panelFollowsAnApplicationsResize()
{
    QWidget window;
    CProgressBarDialogEx panel(QStringLiteral("Printing"), &window);
    for (const int width : {500, 300}) {
        panel.resize(width, 102);
        QCOMPARE(qAlpha(panelPicture(panel).pixel(width - 30, 90)), 255);
    }
    panel.resize(1, 102);
    panelPicture(panel); // stumbles over nothing
}

void tst_ProgressBarEx::panelTickPaintsTheStripAlone()
{
    QWidget window;
    window.resize(500, 200);
    CProgressBarDialogEx panel(QStringLiteral("Printing"), &window);
    panel.show();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QImage before = panelPicture(panel);
    PaintCounter watch(&panel);
    QTRY_VERIFY(watch.paints >= 20);
    QCOMPARE(watch.region, QRegion(8, 75, 367, 16));
    const QImage after = panelPicture(panel);
    QVERIFY(after.copy(8, 75, 367, 16) != before.copy(8, 75, 367, 16));
    QCOMPARE(after.copy(0, 0, 388, 75), before.copy(0, 0, 388, 75));
    panel.setLabel(QStringLiteral("Printed"));
    QCOMPARE(watch.region, QRegion(panel.rect()));
}

void tst_ProgressBarEx::panelHangsOnTheTopmostWindow()
{
    QWidget window;
    QWidget dialog(&window, Qt::Dialog);
    auto *deep = new QWidget(new QWidget(&dialog));
    const CProgressBarDialogEx panel(QStringLiteral("Printing"), deep);
    QCOMPARE(panel.parentWidget(), &window);
    QVERIFY(!panel.isWindow());
    const CProgressBarDialogEx alone(QStringLiteral("Printing"), nullptr);
    QVERIFY(alone.parentWidget() == nullptr && alone.isWindow());
}

void tst_ProgressBarEx::panelIsShownInTheMiddle()
{
    CProgressBarDialogEx panel(QStringLiteral("Printing"), nullptr);
    panel.showDialog(true);
    QVERIFY(panel.isVisible());
    QCOMPARE(panel.windowModality(), Qt::WindowModal);
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(panel.pos(), QPoint(area.left() + (area.width() - 388) / 2, area.top() + (area.height() - 102) / 2));
    panel.hide();
    panel.showDialog(false);
    QCOMPARE(panel.windowModality(), Qt::NonModal);
}

void tst_ProgressBarEx::closeDialogTellsBeforeItHides()
{
    CProgressBarDialogEx panel(QStringLiteral("Printing"), nullptr);
    panel.showDialog(false);
    QList<bool> visibleWhenTold;
    connect(&panel, &CProgressBarDialogEx::closed, this, [&] { visibleWhenTold.append(panel.isVisible()); });
    panel.setAutoClose(150);
    panel.closeDialog();
    QVERIFY(!panel.isVisible());
    QCOMPARE(visibleWhenTold, QList<bool>() << true);
    // The timer still runs.
    QTRY_COMPARE(visibleWhenTold, QList<bool>() << true << false);
    VERIFY_HOLDS_FOR(visibleWhenTold.size() == 2, 400);
}

void tst_ProgressBarEx::autoClose()
{
    CProgressBarDialogEx panel(QStringLiteral("Printing"), nullptr);
    panel.showDialog(false);
    const QSignalSpy closed(&panel, &CProgressBarDialogEx::closed);
    QElapsedTimer clock;
    clock.start();
    panel.setAutoClose(200);
    QTRY_COMPARE(static_cast<int>(closed.count()), 1);
    QVERIFY2(clock.elapsed() >= 180, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(!panel.isVisible());
    // Both timers have ended.
    const QImage frozen = panelPicture(panel);
    VERIFY_HOLDS_FOR(closed.count() == 1, 300);
    QCOMPARE(panelPicture(panel), frozen);
    panel.setAutoClose(-5);
    QTRY_COMPARE(static_cast<int>(closed.count()), 2);
}

void tst_ProgressBarEx::autoCloseThatIsSetTwice()
{
    CProgressBarDialogEx panel(QStringLiteral("Printing"), nullptr);
    const QSignalSpy closed(&panel, &CProgressBarDialogEx::closed);
    panel.setAutoClose(50);
    panel.setAutoClose(500);
    VERIFY_HOLDS_FOR(closed.isEmpty(), 300);
    QTRY_COMPARE(static_cast<int>(closed.count()), 1);
}

// When it closes by itself: see tst_SelfDeletion.
void tst_ProgressBarEx::closedMayDestroyThePanel()
{
    const QPointer<CProgressBarDialogEx> panel = new CProgressBarDialogEx(QStringLiteral("Printing"), nullptr);
    panel->showDialog(false);
    connect(panel.data(), &CProgressBarDialogEx::closed, this, [panel] { delete panel.data(); });
    panel->closeDialog();
    QVERIFY(panel.isNull());
}

void tst_ProgressBarEx::shownAgainItScrolls()
{
    CProgressBarDialogEx panel(QStringLiteral("Printing"), nullptr);
    panel.setAutoClose(0);
    const QSignalSpy closed(&panel, &CProgressBarDialogEx::closed);
    QTRY_COMPARE(static_cast<int>(closed.count()), 1);
    panel.showDialog(false);
    const PaintCounter watch(&panel);
    QTRY_VERIFY(watch.paints >= 10);
}

void tst_ProgressBarEx::screenReaders()
{
    QWidget window;
    CProgressBarEx bar(&window);
    bar.setAccessibleName(QStringLiteral("Order"));
    const QAccessibleInterface *ofBar = QAccessible::queryAccessibleInterface(&bar);
    QCOMPARE(ofBar->role(), QAccessible::ProgressBar);
    QVERIFY(ofBar->state().busy);
    QCOMPARE(ofBar->text(QAccessible::Name), QStringLiteral("Order"));

    CProgressBarDialogEx panel(QStringLiteral("Printing"), &window);
    const QAccessibleInterface *ofPanel = QAccessible::queryAccessibleInterface(&panel);
    QCOMPARE(ofPanel->role(), QAccessible::Dialog);
    QVERIFY(ofPanel->state().busy);
    panel.setLabel(QStringLiteral("Still printing"));
    QCOMPARE(ofPanel->text(QAccessible::Name), QStringLiteral("Still printing"));
    panel.setAccessibleName(QStringLiteral("Order 12"));
    QCOMPARE(ofPanel->text(QAccessible::Name), QStringLiteral("Order 12"));
    QCOMPARE(ofPanel->text(QAccessible::Description), QStringLiteral("Still printing"));
}

HOUSE_TEST_MAIN(tst_ProgressBarEx)
#include "tst_ProgressBarEx.moc"
