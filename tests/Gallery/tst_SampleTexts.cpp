// The gallery speaks the languages that the library does.
#include "helpers/HouseTest.h"

#include "SampleTexts.h"

#include <QDir>

namespace {

// As the library calls the language of a catalogue.
QString tagOf(const QString &catalogue)
{
    const QString name = QFileInfo(catalogue).completeBaseName().section(QLatin1Char('_'), 1);
    if (name == QLatin1String("zh_CN"))
        return QStringLiteral("zh-chs");
    return name == QLatin1String("zh_TW") ? QStringLiteral("zh-cht")
                                          : name.toLower().replace(QLatin1Char('_'), QLatin1Char('-'));
}

} // namespace

class tst_SampleTexts : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyCatalogueHasTexts();
    void otherNamesOfLanguages_data();
    void otherNamesOfLanguages();
};

void tst_SampleTexts::everyCatalogueHasTexts()
{
    const QStringList catalogues = QDir(QStringLiteral(CATALOGUES)).entryList({QStringLiteral("*.ts")});
    QVERIFY(catalogues.size() >= 15);
    for (const QString &catalogue : catalogues)
        QCOMPARE(gallery::sampleTexts(tagOf(catalogue)).tag, tagOf(catalogue));
}

void tst_SampleTexts::otherNamesOfLanguages_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *tag, const char *expected) {
        QTest::newRow(tag) << QString::fromLatin1(tag) << QString::fromLatin1(expected);
    };
    row("zh-cn", "zh-chs");
    row("zh-tw", "zh-cht");
    row("de-at", "de");
    row("pt", "pt-br");
    row("nl", "en");
    row("", "en");
}

void tst_SampleTexts::otherNamesOfLanguages()
{
    QFETCH(QString, tag);
    QFETCH(QString, expected);
    QCOMPARE(gallery::sampleTexts(tag).tag, expected);
}

HOUSE_TEST_MAIN(tst_SampleTexts)
#include "tst_SampleTexts.moc"
