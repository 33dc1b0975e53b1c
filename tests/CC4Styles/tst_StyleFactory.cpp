#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/CC4StyleFactory.h"

#include <QApplication>
#include <QPointer>
#include <QStyleFactory>

namespace {

constexpr auto mainStyle = CC4StyleFactory::CC4Style;

QString baseName()
{
    const auto *style = qobject_cast<const QProxyStyle *>(QApplication::style());
    return style != nullptr ? QString::fromLatin1(style->baseStyle()->metaObject()->className()) : QString();
}

} // namespace

class tst_StyleFactory : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void oneObjectForAllAskers();
    void blueStyleBecomesTheApplications();
    void headerStyleDoesNot();
    void unknownKindsGiveNothing_data();
    void unknownKindsGiveNothing();
    void buttonsShareOneStyle();
    void survivesAnApplicationThatChangesItsStyle();
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

void tst_StyleFactory::unknownKindsGiveNothing_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("three") << 3;
    QTest::newRow("negative") << -1;
}

void tst_StyleFactory::unknownKindsGiveNothing()
{
    QFETCH(int, kind);
    const CC4StyleFactory::CC4Styles unknown{QFlag(kind)};
    QStyle *style = CC4StyleFactory::getStyle(mainStyle);
    QVERIFY(CC4StyleFactory::getStyle(unknown) == nullptr);
    QCOMPARE(QApplication::style(), style);
    CC4StyleFactory::releaseStyle(unknown);
    QCOMPARE(CC4StyleFactory::getStyle(mainStyle), style); // no count was touched
    CC4StyleFactory::releaseStyle(mainStyle);
    CC4StyleFactory::releaseStyle(mainStyle);
}

void tst_StyleFactory::buttonsShareOneStyle()
{
    std::vector<std::unique_ptr<CButtonEx>> buttons;
    buttons.reserve(100);
    for (int i = 0; i < 100; ++i)
        buttons.push_back(std::make_unique<CButtonEx>());
    QStyle *style = QApplication::style();
    for (const auto &button : buttons)
        QCOMPARE(button->style(), style);
    QCOMPARE(QApplication::instance()->findChildren<CCommonControlStyle *>().size(), 1);

    buttons.resize(1);
    QCOMPARE(CC4StyleFactory::getStyle(mainStyle), style); // still shared with the last button
    CC4StyleFactory::releaseStyle(mainStyle);
    buttons.clear();
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
