#include "helpers/HouseTest.h"

#include "FrameEx/Frame.h"

#include <QAccessible>

class tst_FrameEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void line_data();
    void line();
    void isASeparator();
};

void tst_FrameEx::line_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QRgb>("expected");
    QTest::newRow("five high") << 5 << QColor(Qt::blue) << qRgb(0, 0, 255);
    QTest::newRow("six high") << 6 << QColor(Qt::blue) << qRgb(0, 0, 255);
    QTest::newRow("one high") << 1 << QColor(Qt::blue) << qRgb(0, 0, 255);
    QTest::newRow("no colour") << 5 << QColor() << qRgb(0, 0, 0);
    QTest::newRow("half transparent") << 5 << QColor(0, 0, 0, 0x80) << qRgb(127, 127, 127);
}

void tst_FrameEx::line()
{
    QFETCH(int, height);
    QFETCH(QRgb, expected);
    CFrame frame;
    frame.setFrameShape(QFrame::Box); // never seen
    frame.resize(40, height);
    frame.SetGradientFrame(QTest::currentDataTag() == QByteArrayLiteral("no colour") ? Qt::red : Qt::green);
    frame.SetGradientFrame(*static_cast<QColor *>(QTest::qData("color", qMetaTypeId<QColor>())));
    for (const qreal ratio : {1.0, 2.0}) {
        QImage image(frame.size() * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::white);
        frame.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        for (int y = 0; y < image.height(); ++y) {
            const bool isLine = y / int(ratio) == height / 2;
            for (const int x : {0, 1, image.width() / 2, image.width() - 1})
                QCOMPARE(image.pixel(x, y), isLine ? expected : qRgb(255, 255, 255));
        }
    }
}

void tst_FrameEx::isASeparator()
{
    CFrame frame;
    QCOMPARE(QAccessible::queryAccessibleInterface(&frame)->role(), QAccessible::Separator);
}

HOUSE_TEST_MAIN(tst_FrameEx)
#include "tst_FrameEx.moc"
