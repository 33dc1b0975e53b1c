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
    void otherNamesOfLanguages();
};

void tst_SampleTexts::everyCatalogueHasTexts()
{
    const QStringList catalogues = QDir(QStringLiteral(CATALOGUES)).entryList({QStringLiteral("*.ts")});
    QVERIFY(catalogues.size() >= 15);
    for (const QString &catalogue : catalogues)
        QCOMPARE(gallery::sampleTexts(tagOf(catalogue)).tag, tagOf(catalogue));
}

void tst_SampleTexts::otherNamesOfLanguages()
{
    const std::pair<const char *, const char *> tags[] = {{"zh-cn", "zh-chs"}, {"zh-tw", "zh-cht"}, {"de-at", "de"},
                                                          {"pt", "pt-br"},     {"nl", "en"},        {"", "en"}};
    for (const auto &[tag, expected] : tags)
        QCOMPARE(gallery::sampleTexts(QLatin1String(tag)).tag, QLatin1String(expected));
}

HOUSE_TEST_MAIN(tst_SampleTexts)
#include "tst_SampleTexts.moc"
