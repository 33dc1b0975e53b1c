#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "CC4Styles/PaintTools.h"

#include <QApplication>
#include <QPixmapCache>
#include <QPushButton>
#include <QStyleFactory>

#include <functional>

class tst_CommonControlStyle : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { installHouseStyle(); }
    void paletteComesFromTheRegistry();
    void paletteGoesWithTheStyle();
    void paletteOfTheApplicationWins();
    void menuEffectsAreOff();
    void focusIsNotFramed();
    void arrowDownIsATriangle();
    void uniqueNameTellsStates();
    void picturesAreDrawnOncePerKey();
    void picturesAreCrispOnEveryRatio();
    void thinFramesAreThoseOfTheStroker_data();
    void thinFramesAreThoseOfTheStroker();
    void passingPicturesLookLikePictures_data();
    void passingPicturesLookLikePictures();
    void gradientIsCachedByColoursAndSize();
    void mergedColors();
    void roundRectPath();
    void itemTextIsAntialiased();
    void tabItemText();

private:
    void installHouseStyle();
    const CCommonControlStyle &house() const { return *m_style; }
    CCommonControlStyle *m_style = nullptr;
};

void tst_CommonControlStyle::installHouseStyle()
{
    m_style = new CCommonControlStyle;
    QApplication::setStyle(m_style);
}

// A role or two of each group: those that a mistake would make of another's.
void tst_CommonControlStyle::paletteComesFromTheRegistry()
{
    const struct
    {
        QPalette::ColorGroup group;
        QPalette::ColorRole role;
        QRgb color;
    } entries[] = {{QPalette::Disabled, QPalette::Text, 0xFFC7C7C7},
                   {QPalette::Disabled, QPalette::WindowText, 0xFF808080},
                   {QPalette::Disabled, QPalette::Base, 0xFFEFEFEF},
                   {QPalette::Active, QPalette::Button, 0xFFDDDFE4},
                   {QPalette::Active, QPalette::Midlight, 0xFFECEDEC},
                   {QPalette::Active, QPalette::Highlight, 0xFF0065B1},
                   {QPalette::Inactive, QPalette::WindowText, 0xFF444444},
                   {QPalette::Inactive, QPalette::LinkVisited, 0xFF52188B}};
    for (const auto &entry : entries) {
        QCOMPARE(house().standardPalette().color(entry.group, entry.role), QColor(entry.color));
        QCOMPARE(QApplication::palette().color(entry.group, entry.role), QColor(entry.color));
    }
}

void tst_CommonControlStyle::paletteGoesWithTheStyle()
{
    const QPalette house = QApplication::palette();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QVERIFY(QApplication::palette().color(QPalette::Button) != house.color(QPalette::Button));
    QVERIFY(!QCoreApplication::testAttribute(Qt::AA_SetPalette));
    installHouseStyle();
    QCOMPARE(QApplication::palette().color(QPalette::Button), house.color(QPalette::Button));

    QPalette anything(Qt::green);
    const qint64 before = anything.cacheKey();
    m_style->polish(anything);
    QCOMPARE(anything.cacheKey(), before);
}

void tst_CommonControlStyle::paletteOfTheApplicationWins()
{
    QApplication::setPalette(QPalette(Qt::green));
    installHouseStyle();
    QCOMPARE(QApplication::palette().color(QPalette::Button), QColor(Qt::green));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QCOMPARE(QApplication::palette().color(QPalette::Button), QColor(Qt::green));
    QApplication::setPalette(QPalette());
    installHouseStyle();
    QCOMPARE(QApplication::palette().color(QPalette::Button), QColor(0xDD, 0xDF, 0xE4));
}

void tst_CommonControlStyle::menuEffectsAreOff()
{
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, true);
    QApplication::setEffectEnabled(Qt::UI_FadeMenu, true);
    const CCommonControlStyle style;
    QVERIFY(!QApplication::isEffectEnabled(Qt::UI_AnimateMenu));
    QVERIFY(!QApplication::isEffectEnabled(Qt::UI_FadeMenu));
}

void tst_CommonControlStyle::focusIsNotFramed()
{
    QStyleOptionFocusRect option;
    option.rect = QRect(0, 0, 20, 20);
    option.state = QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    const QImage image = Picture::of(option.rect.size(), [&](QPainter *painter) {
        house().drawPrimitive(QStyle::PE_FrameFocusRect, &option, painter, nullptr);
    });
    QVERIFY(Picture::isBlank(image));
}

void tst_CommonControlStyle::arrowDownIsATriangle()
{
    QStyleOption option;
    option.rect = QRect(3, 7, 17, 10);
    const QImage image = Picture::of(QSize(24, 24), [&](QPainter *painter) {
        painter->setPen(Qt::red);
        house().drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, painter, nullptr);
        QCOMPARE(painter->pen().color(), QColor(Qt::red));
    });
    // Rows count from half the rectangle's height, without its top; columns from its right edge, 19.
    const QRect place(5, 5, 9, 5);
    QVERIFY(!Picture::paintsOutside(image, place));
    const QImage wanted = Picture::fromLetters("\n#########\n.#######.\n..#####..\n...###...\n....#....",
                                               {{'#', {QColor(0xFF, 0xFF, 0xFF, 0xB4)}}});
    QCOMPARE(Picture::difference(image.copy(place), wanted), QString());
}

void tst_CommonControlStyle::uniqueNameTellsStates()
{
    QStyleOptionButton button;
    button.state = QStyle::State_Enabled | QStyle::State_MouseOver;
    const QString paletteKey = QString::number(button.palette.cacheKey());
    QCOMPARE(house().uniqueName(QStringLiteral("checkbox"), &button, QSize(16, 17)),
             QStringLiteral("checkbox-%1-0-%2-16x17").arg(static_cast<int>(button.state)).arg(paletteKey));

    QStyleOptionSpinBox spinBox;
    spinBox.state = QStyle::State_None;
    spinBox.palette = button.palette;
    spinBox.activeSubControls = QStyle::SC_SpinBoxDown;
    QCOMPARE(house().uniqueName(QStringLiteral("spinbox"), &spinBox, QSize(1, 2)),
             QStringLiteral("spinbox-0-2-%1-1x2").arg(paletteKey));
}

void tst_CommonControlStyle::picturesAreDrawnOncePerKey()
{
    QPixmapCache::clear();
    int drawn = 0;
    const auto draw = [&drawn](QPainter *painter, const QRect &area) {
        ++drawn;
        painter->fillRect(area, Qt::blue);
    };
    const auto paint = [&](const QSize &size, const QString &key) {
        return Picture::of(QSize(10, 10), [&](QPainter *painter) {
            PaintTools::drawCachedPicture(painter, QPoint(2, 3), size, key, draw);
        });
    };
    const QImage image = paint(QSize(4, 5), QStringLiteral("a"));
    QCOMPARE(Picture::colorAt(image, 2, 3), QStringLiteral("#ff0000ff"));
    QVERIFY(!Picture::paintsOutside(image, QRect(2, 3, 4, 5)));
    QCOMPARE(paint(QSize(4, 5), QStringLiteral("a")), image);
    QCOMPARE(drawn, 1);
    QPixmap cached;
    QVERIFY(QPixmapCache::find(QStringLiteral("a"), &cached));
    paint(QSize(4, 5), QStringLiteral("b"));
    QCOMPARE(drawn, 2);
    paint(QSize(0, 5), QStringLiteral("c")); // nothing to draw, and no complaint
    QCOMPARE(drawn, 2);
}

void tst_CommonControlStyle::picturesAreCrispOnEveryRatio()
{
    QPixmapCache::clear();
    const auto draw = [](QPainter *painter, const QRect &area) {
        painter->fillRect(QRectF(area).adjusted(0.5, 0, 0, 0), Qt::blue);
    };
    const QImage image = Picture::of(
        QSize(4, 4),
        [&](QPainter *painter) {
            PaintTools::drawCachedPicture(painter, QPoint(), QSize(4, 4), QStringLiteral("ratio"), draw);
        },
        2.0);
    QCOMPARE(Picture::colorAt(image, 0, 0), QStringLiteral("#00000000"));
    QCOMPARE(Picture::colorAt(image, 1, 0), QStringLiteral("#ff0000ff"));
    QPixmap cached;
    QVERIFY(!QPixmapCache::find(QStringLiteral("ratio"), &cached));
    QVERIFY(QPixmapCache::find(QStringLiteral("ratio@2"), &cached));
}

void tst_CommonControlStyle::thinFramesAreThoseOfTheStroker_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPen>("pen");
    QTest::addColumn<bool>("antialiased");
    QTest::addColumn<qreal>("ratio");
    const QPen thin(Qt::red, 0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    QTest::newRow("crisp") << QSize(30, 20) << thin << false << 1.0;
    QTest::newRow("antialiased") << QSize(30, 20) << thin << true << 1.0;
    QTest::newRow("antialiased and high") << QSize(5, 150) << thin << true << 1.0;
    QTest::newRow("translucent, crisp") << QSize(30, 20) << QPen(QColor(0, 0, 255, 100)) << false << 1.0;
    QTest::newRow("translucent, antialiased") << QSize(30, 20) << QPen(QColor(0, 0, 255, 100), 0) << true << 1.0;
    QTest::newRow("a line") << QSize(30, 1) << thin << true << 1.0;
    QTest::newRow("nothing") << QSize(0, 0) << thin << true << 1.0;
    QTest::newRow("dashed") << QSize(30, 20) << QPen(Qt::red, 0, Qt::DashLine) << false << 1.0;
    QTest::newRow("thick") << QSize(30, 20) << QPen(Qt::red, 3) << true << 1.0;
    QTest::newRow("dense screen") << QSize(30, 20) << thin << true << 2.0;
}

void tst_CommonControlStyle::thinFramesAreThoseOfTheStroker()
{
    QFETCH(QSize, size);
    QFETCH(QPen, pen);
    QFETCH(bool, antialiased);
    QFETCH(qreal, ratio);
    const QRect rect(QPoint(4, 5), size);
    const auto paint = [&](const std::function<void(QPainter *)> &stroke) {
        return Picture::of(
            size + QSize(10, 10),
            [&](QPainter *painter) {
                painter->setRenderHint(QPainter::Antialiasing, antialiased);
                painter->setPen(pen);
                stroke(painter);
            },
            ratio);
    };
    const QImage expected = paint([&](QPainter *painter) { painter->drawRect(rect); });
    const QImage image = paint([&](QPainter *painter) { PaintTools::strokeRect(painter, rect); });
    constexpr int rounding = 2;
    QCOMPARE(Picture::difference(image, expected, rounding), QString());
}

void tst_CommonControlStyle::passingPicturesLookLikePictures_data()
{
    QTest::addColumn<bool>("straight");
    QTest::addColumn<qreal>("opacity");
    QTest::addColumn<qreal>("scale");
    QTest::newRow("straight") << true << 1.0 << 1.0;
    QTest::newRow("faded") << false << 0.5 << 1.0; // parts must not show through each other
    QTest::newRow("scaled") << false << 1.0 << 1.5;
}

void tst_CommonControlStyle::passingPicturesLookLikePictures()
{
    QFETCH(bool, straight);
    QFETCH(qreal, opacity);
    QFETCH(qreal, scale);
    const QSize size(9, 7);
    const QPoint place(3, 4);
    const auto draw = [](QPainter *painter, const QRect &area) {
        painter->fillRect(area, QBrush(Qt::blue, Qt::Dense4Pattern));
        painter->fillRect(area.adjusted(2, 2, 0, 0), Qt::red);
        painter->drawLine(1, 0, 8, 6); // not antialiased on a new picture
    };
    const auto paint = [&](const std::function<void(QPainter *)> &put) {
        return Picture::of(
            QSize(24, 24),
            [&](QPainter *painter) {
                painter->setRenderHint(QPainter::Antialiasing);
                painter->setBrushOrigin(1, 0);
                painter->setOpacity(opacity);
                painter->scale(scale, scale);
                const QTransform before = painter->worldTransform();
                QCOMPARE(PaintTools::showsPixelsAsDrawn(painter), straight);
                put(painter);
                QCOMPARE(painter->worldTransform(), before);
                QCOMPARE(painter->brushOrigin(), QPoint(1, 0));
                QVERIFY(painter->testRenderHint(QPainter::Antialiasing));
            });
    };
    const QImage expected =
        paint([&](QPainter *painter) { painter->drawPixmap(place, PaintTools::newPicture(painter, size, draw)); });
    const QImage image = paint([&](QPainter *painter) { PaintTools::drawPassingPicture(painter, place, size, draw); });
    QCOMPARE(Picture::difference(image, expected), QString());
}

void tst_CommonControlStyle::gradientIsCachedByColoursAndSize()
{
    QPixmapCache::clear();
    const QRect rect(1, 2, 3, 101);
    const auto paint = [&](bool transparent) {
        return Picture::of(QSize(8, 110), [&](QPainter *painter) {
            house().drawGradient(painter, rect, Qt::white, QColor(0, 0, 0, 0), transparent);
        });
    };
    const QImage image = paint(false);
    QVERIFY(qAlpha(image.pixel(1, 2)) > 250);
    QVERIFY(qAlpha(image.pixel(3, 102)) < 5);
    QVERIFY(qAbs(qAlpha(image.pixel(2, 52)) - 128) < 4);
    QVERIFY(!Picture::paintsOutside(image, rect));
    QCOMPARE(paint(true), image);
    QPixmap cached;
    QVERIFY(QPixmapCache::find(QStringLiteral("3x101-ffffffff-0"), &cached));
}

void tst_CommonControlStyle::mergedColors()
{
    const QColor half(10, 20, 30, 40);
    QCOMPARE(house().mergedColors(Qt::white, half, 0), QColor(10, 20, 30, 255));
    QCOMPARE(house().mergedColors(half, Qt::white, 100), half);
    // Each term is truncated.
    QCOMPARE(house().mergedColors(Qt::white, Qt::black, 50), QColor(127, 127, 127));
    QCOMPARE(house().mergedColors(QColor(1, 3, 5), QColor(1, 3, 5), 50), QColor(0, 2, 4));
}

void tst_CommonControlStyle::roundRectPath()
{
    const QRect rect(10, 20, 31, 21); // to (40, 40)
    const QPainterPath path = house().getRoundRectPath(rect, 10);
    QCOMPARE(path.boundingRect(), QRectF(10, 20, 30, 20));
    QCOMPARE(QPointF(path.elementAt(0)), QPointF(40, 30));
    QVERIFY(!path.contains(QPointF(10.5, 20.5)) && !path.contains(QPointF(39.5, 39.5)));
    QVERIFY(path.contains(QPointF(11.5, 25)) && path.contains(QPointF(25, 20.5)));

    QCOMPARE(house().getRoundRectWithArrowPath(rect, 10, 0), path);
    QVERIFY(house().getRoundRectWithArrowPath(rect, 10, 1).isEmpty());
}

void tst_CommonControlStyle::itemTextIsAntialiased()
{
    const QImage image = Picture::of(QSize(80, 20), [&](QPainter *painter) {
        const QPalette palette = house().standardPalette();
        house().drawItemText(painter, QRect(0, 0, 80, 20), Qt::AlignCenter, palette, true, QStringLiteral("Print"),
                             QPalette::Highlight);
        QVERIFY(painter->testRenderHint(QPainter::Antialiasing));
    });
    QVERIFY(Picture::paintsOutside(image, QRect(0, 0, 10, 20)));
}

void tst_CommonControlStyle::tabItemText()
{
    const QPalette palette = house().standardPalette();
    const QRect rect(0, 0, 80, 20);
    const auto paint = [&](const QString &text, bool enabled, QPalette::ColorRole role) {
        return Picture::of(rect.size(), [&](QPainter *painter) {
            painter->setPen(Qt::red);
            house().drawTabItemText(painter, rect, Qt::AlignCenter, palette, enabled, text, role);
            QCOMPARE(painter->pen().color(), QColor(Qt::red));
            QVERIFY(!painter->testRenderHint(QPainter::Antialiasing));
        });
    };
    const QString text = QStringLiteral("Print");
    const QImage enabled = paint(text, true, QPalette::WindowText);
    QVERIFY(!Picture::isBlank(enabled));
    QVERIFY(paint(text, true, QPalette::NoRole) != enabled);      // in the painter's own pen
    QVERIFY(paint(text, false, QPalette::WindowText) != enabled); // etched
    QVERIFY(Picture::isBlank(paint(QString(), true, QPalette::WindowText)));
}

HOUSE_TEST_MAIN(tst_CommonControlStyle)
#include "tst_CommonControlStyle.moc"
