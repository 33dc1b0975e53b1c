// The progress dialogs as real windows: what their masks leave free, and how they are cancelled.
#include "RealPointer.h"
#include "helpers/HouseTest.h"

#include "ProgressBarEx/ProgressBarDialogEx.h"
#include "ProgressDialogEx/ProgressDialogEx.h"
#include "RainbowProgressDialog/RainbowProgressDialog.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QSignalSpy>

namespace {

constexpr int tile = 8;
const QRect groundPlace(100, 100, 700, 400);

/** A chequered window, so that a pixel tells whether it is covered. */
class Ground : public QWidget
{
public:
    static QColor colorAt(const QPoint &place) { return (place.x() / tile + place.y() / tile) % 2 == 0 ? light : dark; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        for (int x = 0; x < width(); x += tile)
            for (int y = 0; y < height(); y += tile)
                painter.fillRect(x, y, tile, tile, colorAt(QPoint(x, y)));
    }

private:
    static constexpr QRgb light = 0xFFF0E060;
    static constexpr QRgb dark = 0xFF802020;
};

QImage screen()
{
    return QApplication::primaryScreen()->grabWindow(0).toImage();
}

} // namespace

class tst_ProgressWindows : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void masksLeaveTheCornersFree_data();
    void masksLeaveTheCornersFree();
    void cancelledByAClickBeside();
    void panelOverItsWindow();

private:
    std::unique_ptr<QDialog> makeDialog(const QString &kind) const;
    bool isFree(const QImage &picture, const QPoint &global) const;

    std::unique_ptr<Ground> m_ground;
};

void tst_ProgressWindows::init()
{
    HouseTest::init();
    m_ground = std::make_unique<Ground>();
    m_ground->setGeometry(groundPlace);
    m_ground->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_ground.get()));
    QTRY_VERIFY(isFree(screen(), m_ground->mapToGlobal(QPoint(5, 5))));
}

void tst_ProgressWindows::cleanup()
{
    m_ground.reset();
    HouseTest::cleanup();
}

std::unique_ptr<QDialog> tst_ProgressWindows::makeDialog(const QString &kind) const
{
    if (kind == QLatin1String("value")) {
        auto dialog = std::make_unique<CProgressDialogEx>(m_ground.get());
        dialog->setText(QStringLiteral("Copying IMG_0012.jpg"));
        dialog->setValue(30);
        return dialog;
    }
    auto dialog = std::make_unique<CRainbowProgressDialog>(m_ground.get());
    dialog->setText(QStringLiteral("Printing"), 0);
    dialog->setText(QStringLiteral("The shop is told what has been ordered."), 1);
    return dialog;
}

bool tst_ProgressWindows::isFree(const QImage &picture, const QPoint &global) const
{
    return picture.pixelColor(global) == Ground::colorAt(m_ground->mapFromGlobal(global));
}

void tst_ProgressWindows::masksLeaveTheCornersFree_data()
{
    QTest::addColumn<int>("leftTrim");
    QTest::newRow("value") << 2;
    QTest::newRow("rainbow") << 0;
}

void tst_ProgressWindows::masksLeaveTheCornersFree()
{
    QFETCH(int, leftTrim);
    const auto dialog = makeDialog(QString::fromLatin1(QTest::currentDataTag()));
    dialog->move(m_ground->mapToGlobal(QPoint(100, 100)));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    const auto at = [&dialog](int x, int y) {
        return dialog->mapToGlobal(QPoint(x, y));
    };
    QTRY_VERIFY(!isFree(screen(), at(leftTrim + 30, 5)));
    const int right = dialog->width() - 2; // the last column and the last row are free
    const int bottom = dialog->height() - 2;
    QTRY_VERIFY(isFree(screen(), at(right + 1, 20)) && isFree(screen(), at(100, bottom + 1)));
    const QImage picture = screen();
    for (const QPoint &corner : {at(leftTrim, 0), at(right, 0), at(leftTrim + 12, bottom), at(right - 12, bottom)})
        QVERIFY(!isFree(picture, corner));
    for (const QPoint &corner :
         {at(leftTrim, bottom), at(leftTrim + 2, bottom), at(right, bottom), at(right, bottom - 2)})
        QVERIFY(isFree(picture, corner));
    QCOMPARE(isFree(picture, at(1, 10)), leftTrim == 2);
}

void tst_ProgressWindows::cancelledByAClickBeside()
{
    for (const char *kind : {"value", "rainbow"}) {
        const auto dialog = makeDialog(QLatin1String(kind));
        const QSignalSpy rejected(dialog.get(), &QDialog::rejected);
        dialog->move(m_ground->mapToGlobal(QPoint(100, 100)));
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        RealPointer::clickAt(dialog->mapToGlobal(QPoint(50, 20)));
        VERIFY_HOLDS_FOR(dialog->isVisible(), 200);
        RealPointer::clickAt(m_ground->mapToGlobal(QPoint(20, 20)));
        QTRY_VERIFY(!dialog->isVisible());
        QCOMPARE(static_cast<int>(rejected.count()), 1);
    }
}

void tst_ProgressWindows::panelOverItsWindow()
{
    CProgressBarDialogEx panel(QStringLiteral("Printing"), m_ground.get());
    panel.showDialog(true);
    panel.move(100, 100);
    const auto at = [&panel](int x, int y) {
        return panel.mapToGlobal(QPoint(x, y));
    };
    QTRY_VERIFY(!isFree(screen(), at(20, 40)));
    const QImage picture = screen();
    QVERIFY(isFree(picture, at(200, 2)) && isFree(picture, at(386, 50)));
    QVERIFY(!isFree(picture, at(5, 50)) && !isFree(picture, at(200, 95))); // the shadow
    // It moves on the screen, and a tick leaves the rest as it is.
    const QRect strip(at(20, 76), QSize(300, 14));
    const QRect face(at(0, 0), QSize(388, 75));
    QTRY_VERIFY(screen().copy(strip) != picture.copy(strip));
    QCOMPARE(screen().copy(face), picture.copy(face));
    panel.closeDialog();
    QTRY_VERIFY(isFree(screen(), at(20, 40)));
}

HOUSE_TEST_MAIN(tst_ProgressWindows)
#include "tst_ProgressWindows.moc"
