// What is made of samples: medians, ratios, and whether a promise is kept.
#include "helpers/HouseTest.h"

#include "CommandLine.h"
#include "Measure.h"

#include <cmath>
#include <limits>

using Samples = std::vector<double>;

Q_DECLARE_METATYPE(Samples)
Q_DECLARE_METATYPE(Promise)

namespace {

const double missing = std::numeric_limits<double>::quiet_NaN();

/** Ours and two others. */
Comparison comparisonOf(const Samples &ours, const Samples &second, const Samples &third, const Promise &promise)
{
    return {QStringLiteral("group"),
            QStringLiteral("name"),
            QStringLiteral("ns"),
            {{QStringLiteral("ours"), {}, ours},
             {QStringLiteral("second"), {}, second},
             {QStringLiteral("third"), {}, third}},
            promise};
}

Comparison named(const char *group, const char *name)
{
    return {QString::fromLatin1(group), QString::fromLatin1(name), QStringLiteral("ns"), {}, {}};
}

} // namespace

class tst_Measure : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void medianIsTheMiddle_data();
    void medianIsTheMiddle();
    void ratiosAreTakenWithinRounds();
    void promiseIsKept_data();
    void promiseIsKept();
    void missingFigureIsNoticed();
    void contendersTakeAsManyTurns();
    void nameChoosesItselfOrWhatHasIt_data();
    void nameChoosesItselfOrWhatHasIt();
};

void tst_Measure::medianIsTheMiddle_data()
{
    QTest::addColumn<Samples>("samples");
    QTest::addColumn<double>("middle");
    QTest::newRow("one") << Samples{4} << 4.0;
    QTest::newRow("odd, unsorted") << Samples{9, 1, 3} << 3.0;
    QTest::newRow("even: between both") << Samples{8, 1, 2, 4} << 3.0;
    QTest::newRow("none") << Samples{} << missing;
    QTest::newRow("one missing, first") << Samples{missing, 1, 2} << missing;
    QTest::newRow("one missing, last") << Samples{1, 2, 3, missing} << missing;
}

void tst_Measure::medianIsTheMiddle()
{
    QFETCH(Samples, samples);
    QFETCH(double, middle);
    QCOMPARE(median(samples), middle); // which holds NaN to be equal
}

void tst_Measure::ratiosAreTakenWithinRounds()
{
    // The second round met something else on the machine; the ratio of the medians would be 1.5.
    QCOMPARE(medianRatio({2, 30, 3}, {1, 30, 2}), 1.5);
    QCOMPARE(medianRatio({2, 30, 8}, {1, 15, 2}), 2.0);
    QVERIFY(std::isnan(medianRatio({2, missing, 8}, {1, 1, 1})));
    QVERIFY(std::isnan(medianRatio({0, 0}, {0, 0})));
    QVERIFY(std::isnan(medianRatio({}, {1})));
}

void tst_Measure::promiseIsKept_data()
{
    QTest::addColumn<Samples>("ours");
    QTest::addColumn<Samples>("second");
    QTest::addColumn<Samples>("third");
    QTest::addColumn<Promise>("promise");
    QTest::addColumn<bool>("isWithinLimit");
    QTest::addColumn<bool>("isFirst");
    const Promise nothing;
    const Promise ratio{Promise::Ratio, 1.5, {}};
    const Promise difference{Promise::Difference, 3, {}};
    const Promise ahead{Promise::Nothing, 0, {1, 2}};
    const Promise both{Promise::Ratio, 1.5, {2}};
    const Samples two{2, 2, 2};
    const Samples failed{2, missing, 2};
    QTest::newRow("nothing") << Samples{9} << two << two << nothing << true << true;
    QTest::newRow("ratio, at the limit") << Samples{3} << two << two << ratio << true << true;
    QTest::newRow("ratio, above") << Samples{3.1} << two << two << ratio << false << true;
    QTest::newRow("ratio, ours missing") << failed << two << two << ratio << false << true;
    QTest::newRow("ratio, the other missing") << two << failed << two << ratio << false << true;
    QTest::newRow("ratio, both zero") << Samples{0} << Samples{0} << two << ratio << false << true;
    QTest::newRow("difference, at the limit") << Samples{5} << two << two << difference << true << true;
    QTest::newRow("difference, above") << Samples{5.1} << two << two << difference << false << true;
    QTest::newRow("difference, the other missing") << two << failed << two << difference << false << true;
    QTest::newRow("ahead, equal") << two << two << two << ahead << true << true;
    QTest::newRow("ahead of one only") << Samples{2} << Samples{3} << Samples{1} << ahead << true << false;
    QTest::newRow("ahead, one missing") << two << two << failed << ahead << true << false;
    QTest::newRow("both, the limit only") << Samples{3} << two << two << both << true << false;
    QTest::newRow("both, ahead only") << Samples{4} << two << Samples{5} << both << false << true;
}

void tst_Measure::promiseIsKept()
{
    QFETCH(Samples, ours);
    QFETCH(Samples, second);
    QFETCH(Samples, third);
    QFETCH(Promise, promise);
    QFETCH(bool, isWithinLimit);
    QFETCH(bool, isFirst);
    const Comparison comparison = comparisonOf(ours, second, third, promise);
    QCOMPARE(isLimitKept(comparison), isWithinLimit);
    QCOMPARE(isAhead(comparison), isFirst);
    QCOMPARE(isKept(comparison), isWithinLimit && isFirst);
}

void tst_Measure::missingFigureIsNoticed()
{
    QVERIFY(isMeasured(comparisonOf({1}, {2}, {3}, {})));
    QVERIFY(!isMeasured(comparisonOf({1, 1}, {2, 2}, {3, missing}, {})));
    QVERIFY(!isMeasured(comparisonOf({}, {2}, {3}, {})));
}

void tst_Measure::contendersTakeAsManyTurns()
{
    double sum = 0;
    const auto work = [&sum](int count) {
        for (int i = 0; i < count; ++i)
            sum += std::sqrt(i);
    };
    int made = 0;
    Comparison comparison = named("group", "name");
    comparison.makeContenders = [&] {
        ++made;
        const auto seven = [] {
            return 7.0;
        };
        return std::vector<Contender>{{QStringLiteral("long"), [&work] { work(20000); }, {}},
                                      {QStringLiteral("short"), [&work] { work(1000); }, {}},
                                      {QStringLiteral("by itself"), {}, {}, seven}};
    };
    takeTurns(comparison, 5, 0.001);
    prepare(comparison);
    QCOMPARE(made, 1);
    for (const Contender &contender : comparison.contenders)
        QCOMPARE(contender.samples.size(), std::size_t(5));
    QCOMPARE(comparison.contenders[2].samples, Samples({7, 7, 7, 7, 7}));
    QVERIFY(sum > 0);
    QVERIFY2(ratioTo(comparison, 1) > 5, "a twentieth of the work takes far less");
}

void tst_Measure::nameChoosesItselfOrWhatHasIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("chosen");
    const QString plain = QStringLiteral("painting: push button");
    const QString byDefault = QStringLiteral("painting: push button, default");
    const QString cold = QStringLiteral("cold painting: push button");
    const QString form = QStringLiteral("painting: form");
    QTest::newRow("a name") << plain << QStringList{plain};
    QTest::newRow("a part of names") << QStringLiteral("push button") << QStringList{plain, byDefault, cold};
    QTest::newRow("a part in other letters") << QStringLiteral("FORM") << QStringList{form};
    QTest::newRow("nothing") << QStringLiteral("menu") << QStringList();
    QTest::newRow("no text") << QString() << QStringList{plain, byDefault, cold, form};
}

void tst_Measure::nameChoosesItselfOrWhatHasIt()
{
    QFETCH(QString, text);
    QFETCH(QStringList, chosen);
    std::vector<Comparison> comparisons = {named("painting", "push button"), named("painting", "push button, default"),
                                           named("cold painting", "push button"), named("painting", "form")};
    keepChosen(comparisons, text);
    QStringList names;
    for (const Comparison &comparison : comparisons)
        names.append(fullName(comparison));
    QCOMPARE(names, chosen);
}

HOUSE_TEST_MAIN(tst_Measure)
#include "tst_Measure.moc"
