#include "helpers/HouseTest.h"

#include "UiGraphics/Deployment.h"
#include "UiGraphicsColors.h"
#include "UiGraphicsXml.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace {

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

constexpr char highlight[] = "color UIGCLR_PB_NORMAL_BOTTOM";
constexpr char highlightDefault[] = "#fff7941d";

QByteArray colorXml(const QByteArray &value)
{
    return QByteArray("<UIGraphics><Color Name=\"UIGCLR_PB_NORMAL_BOTTOM\">") + value + "</Color></UIGraphics>";
}

} // namespace

class tst_UiGraphics : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void builtInColorsAreUnchanged();
    void colorsAreOpaqueAndUnknownOnesBlack();
    void startsOnce();
    void withoutUtilityLibraryEverythingIsHarmless();
    void startsWhenUtilityLibraryAppears();
    void incompleteUtilityLibrary();
    void emptyGraphicsDirectory();
    void xmlOverridesColors_data();
    void xmlOverridesColors();
    void xmlReadsInDocumentOrder();
    void languageFileWins();
    void languageChoosesLocaleAndFont_data();
    void languageChoosesLocaleAndFont();
    void privateFont();
    void oddFontFiles();
    void fontAttributes();
    void filesOfTheLanguageComeFirst();
    void doubleResolution();
    void changedFilesAreReadAgain();
    void hugeBitmapsAreLeftOut();
    void localizedPath();
};

// Whoever changes a colour on purpose takes the new sum along; a slip in one of 326 rows does not go by.
void tst_UiGraphics::builtInColorsAreUnchanged()
{
    QStringList rows;
    for (const ColorDefault &color : colorDefaults)
        rows.append(
            QStringLiteral("%1=%2").arg(QString::fromUtf16(color.key)).arg(color.argb, 8, 16, QLatin1Char('0')));
    QCOMPARE(static_cast<int>(QSet<QString>(rows.begin(), rows.end()).size()), 326);
    rows.sort();
    const QByteArray text = rows.join(QLatin1Char('\n')).toLatin1();
    QCOMPARE(QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex(),
             QByteArray("433aa8cdb395ac129f007a59154de002e344bb95"));
}

void tst_UiGraphics::colorsAreOpaqueAndUnknownOnesBlack()
{
    const Deployment deployment;
    QCOMPARE(deployment.ask(words("color UIGCLR_WHITE color UIGCLR_UIF_BOTTOM_GRAYSHADE_GRAD_5 color UIGCLR_LIB_BKGND "
                                  "color UIGCLR_PB_TRANS_BUTTONRECT color uigclr_white")
                            << QStringLiteral("color") << QString()),
             words("#ffffffff #ff74a6b0 #ff0064b1 #ff000000 #ff000000 #ff000000"));
}

void tst_UiGraphics::startsOnce()
{
    const Deployment deployment;
    QCOMPARE(deployment.ask(words("color UIGCLR_WHITE color UIGCLR_RED")), words("#ffffffff #ffff0000"));
    const QString log = deployment.log();
    QCOMPARE(log.count(QLatin1String(": CUIGraphics::initializeUIG\n")), 2); // its entry and its exit
    QVERIFY(log.contains(
        QRegularExpression(QStringLiteral(R"( 1 uigraphics \.\\UiGraphics\(\d+\): CUIGraphics::initializeUIG\n)"))));
}

void tst_UiGraphics::withoutUtilityLibraryEverythingIsHarmless()
{
    // A file that is no library stands in the way of one that may be installed on this machine.
    Deployment deployment;
    deployment.write(QStringLiteral("libZelCUtil03.so"), QByteArray());
    deployment.set(QStringLiteral("LD_LIBRARY_PATH"), deployment.graphics());
    const QStringList answers =
        deployment.ask(words("color UIGCLR_WHITE font 13 75 1 path Close.png pixmap Close.png 1 icon Close.png"),
                       QStringLiteral(PROBE_ALONE));
    QCOMPARE(answers.value(0), QStringLiteral("#ff000000"));
    QVERIFY2(answers.value(1).endsWith(QLatin1String(",13px,-1pt,bold,italic,antialias")),
             qPrintable(answers.value(1)));
    QCOMPARE(answers.mid(2), QStringList() << QString() << QStringLiteral("null") << QStringLiteral("null"));
    // Every lookup tries anew.
    QCOMPARE(deployment.log().count(QLatin1String("library load of zelcutil failed")), 5);
}

void tst_UiGraphics::startsWhenUtilityLibraryAppears()
{
    Deployment deployment;
    deployment.set(QStringLiteral("LD_LIBRARY_PATH"), deployment.home());
    deployment.set(QStringLiteral("PROBE_LIBRARY_DIR"), deployment.home());
    const QStringList questions = words("color UIGCLR_WHITE provide")
                                  << QStringLiteral(UTILITY_LIBRARY) << words("color UIGCLR_WHITE color UIGCLR_RED");
    QCOMPARE(deployment.ask(questions, QStringLiteral(PROBE_ALONE)), words("#ff000000 done #ffffffff #ffff0000"));
    QCOMPARE(deployment.log().count(QLatin1String("library load of zelcutil failed")), 1);
}

void tst_UiGraphics::incompleteUtilityLibrary()
{
    struct Library
    {
        const char *directory;
        const char *family; // of the language that it gives
        const char *missing;
    };
    for (const auto &[directory, family, missing] : {Library{ONLY_LANGUAGE, "MS Gothic", "no RetrievePath in zelcutil"},
                                                     Library{ONLY_PATH, "Tahoma", "no GetLanguage in zelcutil"}}) {
        Deployment deployment;
        deployment.set(QStringLiteral("LD_LIBRARY_PATH"), QLatin1String(directory));
        const QStringList answers =
            deployment.ask(words("color UIGCLR_WHITE font 14 -1 0 path Close.png"), QStringLiteral(PROBE_ALONE));
        QCOMPARE(answers.value(0), QStringLiteral("#ffffffff"));
        QCOMPARE(answers.value(1).section(QLatin1Char(','), 0, 0), QLatin1String(family));
        QCOMPARE(answers.value(2), QString());
        QCOMPARE(deployment.log().count(QLatin1String(missing)), 1);
    }
}

void tst_UiGraphics::emptyGraphicsDirectory()
{
    Deployment deployment;
    const QString settings = deployment.home() + QStringLiteral("/zelcutil03.ini");
    QFile file(settings);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Installation]\nCommonGraphicsDir =\n");
    file.close();
    deployment.set(QStringLiteral("ZEL_GRAPHICS_DIR"), QString());
    const QStringList slice = words("path PushbuttonWhiteBlit.png");
    QVERIFY(QFile::exists(deployment.ask(slice).value(0))); // the built-in artwork, without any settings
    deployment.set(QStringLiteral("XDG_CONFIG_HOME"), deployment.home());
    QCOMPARE(deployment.ask(words("color UIGCLR_WHITE path PushbuttonWhiteBlit.png font 14 -1 0")),
             QStringList() << QStringLiteral("#ffffffff") << QString()
                           << QStringLiteral("Tahoma,14px,-1pt,normal,antialias"));
    QCOMPARE(deployment.log().count(QLatin1String("BaseValue found")), 1); // that of the first question
}

void tst_UiGraphics::xmlOverridesColors_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("color");
    const auto changed = QStringLiteral("#ff8a2be2");
    const QString kept = QLatin1String(highlightDefault);
    const auto black = QStringLiteral("#ff000000");
    QTest::newRow("without alpha") << colorXml("8A2BE2") << changed;
    QTest::newRow("with alpha, which is ignored") << colorXml("108A2BE2") << changed;
    QTest::newRow("white space around") << colorXml("\n  8a2be2 ") << changed;
    QTest::newRow("in pieces") << colorXml("8A<!-- red -->2B<b>E2</b>") << changed;
    QTest::newRow("leading #") << colorXml("#8A2BE2") << black;
    QTest::newRow("too long") << colorXml("1108A2BE2") << black;
    QTest::newRow("empty") << colorXml("") << black;
    QTest::newRow("below three levels") << QByteArray("<a><b><c>") + colorXml("8A2BE2") + "</c></b></a>" << changed;
    QTest::newRow("second of a name") << QByteArray("<a>") + colorXml("112233") + colorXml("8A2BE2") + "</a>"
                                      << changed;
    QTest::newRow("element name in lower case")
        << QByteArray("<a><color Name='UIGCLR_PB_NORMAL_BOTTOM'>8A2BE2</color></a>") << kept;
    QTest::newRow("no Name") << QByteArray("<a><Color>8A2BE2</Color></a>") << kept;
    QTest::newRow("not closed") << QByteArray("<a>") + colorXml("8A2BE2") << kept;
    QTest::newRow("text behind the root") << colorXml("8A2BE2") + "rest" << kept;
    QTest::newRow("no content") << QByteArray() << kept;
    QTest::newRow("only a font") << QByteArray("<a><Font Name='UIGCLR_PB_NORMAL_BOTTOM'>8A2BE2</Font></a>") << kept;
}

void tst_UiGraphics::xmlOverridesColors()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, color);
    const Deployment deployment;
    deployment.write(QStringLiteral("UIGraphics.xml"), xml);
    QCOMPARE(deployment.ask(words(highlight) << words("color UIGCLR_PB_TRANS_BUTTONRECT color UIGCLR_WHITE")),
             QStringList() << color << words("#ff000000 #ffffffff"));
}

void tst_UiGraphics::xmlReadsInDocumentOrder()
{
    const Deployment deployment;
    deployment.write(QStringLiteral("x.xml"), "<Color Name='outer'>1<Color Name='inner'>2</Color><Font Name='f'> A B "
                                              "</Font></Color>");
    deployment.write(QStringLiteral("pieces.xml"),
                     "<a><Font Name='f'>\n A<b> &#32;</b>B<Font Name='g'>\n C</Font>D</Font></a>");
    deployment.write(QStringLiteral("bad.xml"), "<a>\n<Font Name='f'>A</Font><b>\n</a>");
    const LookOverrides overrides = readLookOverrides(deployment.graphics() + QStringLiteral("/x.xml"));
    QCOMPARE(static_cast<int>(overrides.colors.size()), 2);
    QCOMPARE(overrides.colors.at(0).name, QStringLiteral("outer"));
    QCOMPARE(overrides.colors.at(0).text, QStringLiteral("12 A B"));
    QCOMPARE(overrides.colors.at(1).text, QStringLiteral("2"));
    QCOMPARE(overrides.fonts.value(0).text, QStringLiteral("A B"));

    const LookOverrides pieces = readLookOverrides(deployment.graphics() + QStringLiteral("/pieces.xml"));
    QCOMPARE(pieces.fonts.value(0).text, QStringLiteral("A  B CD"));
    QCOMPARE(pieces.fonts.value(1).text, QStringLiteral("C"));
    QCOMPARE(pieces.fonts.value(1).line, 2);
    QVERIFY(!pieces.fonts.value(0).hasMore);
    const LookOverrides bad = readLookOverrides(deployment.graphics() + QStringLiteral("/bad.xml"));
    QVERIFY(bad.fonts.isEmpty() && !bad.error.isEmpty());
    QCOMPARE(bad.errorLine, 3);
}

void tst_UiGraphics::languageFileWins()
{
    Deployment deployment;
    deployment.set(QStringLiteral("ZEL_LANGUAGE"), QStringLiteral("ko"));
    deployment.write(QStringLiteral("UIGraphics.xml"),
                     "<a><Color Name='UIGCLR_PB_NORMAL_BOTTOM'>111111</Color><Color Name='UIGCLR_PB_NORMAL_TOP'>222222"
                     "</Color><Font Name='UIGFONT_KO'>Common</Font></a>");
    deployment.write(QStringLiteral("ko/UIGraphics.xml"),
                     "<a><Color Name='UIGCLR_PB_NORMAL_BOTTOM'>333333</Color><Font Name='UIGFONT_KO'>Nanum</Font></a>");
    QCOMPARE(deployment.ask(words("color UIGCLR_PB_NORMAL_BOTTOM color UIGCLR_PB_NORMAL_TOP font 13 -1 0")),
             words("#ff333333 #ff222222 Nanum,13px,-1pt,normal,antialias"));
}

void tst_UiGraphics::languageChoosesLocaleAndFont_data()
{
    QTest::addColumn<QString>("locale"); // of the look, not of the process
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("record");
    const auto row = [](const char *tag, const char *locale, const char *family, const char *record) {
        QTest::newRow(tag) << QString::fromLatin1(locale) << QString::fromLatin1(family) << QString::fromLatin1(record);
    };
    row("ja", "ja_JP", "MS Gothic", "Font is Japanese - MS Gothic");
    row("JA", "ja_JP", "MS Gothic", "Font is Japanese - MS Gothic");
    row("zh-chs", "zh_CN", "SimSun", "Font is Chinese (Simplified)  - SimSun");
    row("zh-CN", "zh_CN", "SimSun", "Font is Chinese (Simplified)  - SimSun");
    row("zh-cht", "zh_TW", "Mingliu", "Font is Chinese (Traditional)  - Mingliu");
    row("zh-tw", "zh_TW", "Mingliu", "Font is Chinese (Traditional)  - Mingliu");
    row("ko", "ko_KR", "Batang", "Font is Korean - Batang");
    row("ru", "ru_RU", "Tahoma Cyr", "Font is Russian - Tahoma Cyr");
    row("el", "el_GR", "Tahoma Cyr", "Font is Greek - Tahoma Cyr");
    row("tr", "tr_TR", "Tahoma Cyr", "Font is Turkish - Tahoma Cyr");
    row("he", "he_IL", "Tahoma", "Font is Hebrew - Tahoma");
    row("pt-br", "pt_BR", "Tahoma", "Standard Font is Tahoma");
    row("house", "C", "Tahoma", "Standard Font is Tahoma");
}

void tst_UiGraphics::languageChoosesLocaleAndFont()
{
    QFETCH(QString, locale);
    QFETCH(QString, family);
    QFETCH(QString, record);
    Deployment deployment;
    deployment.set(QStringLiteral("LANG"), QStringLiteral("de_DE.UTF-8"));
    deployment.set(QStringLiteral("ZEL_LANGUAGE"), QString::fromLatin1(QTest::currentDataTag()));
    const QString held = family + QStringLiteral(",-1px,10pt,normal");
    QCOMPARE(deployment.ask(words("locale font 13 -1 0 held UIGFONT_TAHOMA held UIGFONT_JA")),
             QStringList({locale, family + QStringLiteral(",13px,-1pt,normal,antialias"), held, held}));
    QVERIFY(deployment.log().contains(QLatin1String(": ") + record + QLatin1Char('\n')));
    QVERIFY(deployment.log().contains(QLatin1String(": Small Font is Arial\n")));
}

void tst_UiGraphics::privateFont()
{
    // Any font will do as long as the system does not have it: fontconfig is shown an empty directory.
    const QString anyFont = QStringLiteral(TEST_FONT);
    QVERIFY2(QFile::exists(anyFont), "The font of Debian's package fonts-dejavu-core is needed here.");
    Deployment deployment;
    deployment.write(QStringLiteral("fonts.conf"), "<?xml version='1.0'?><!DOCTYPE fontconfig SYSTEM 'fonts.dtd'>"
                                                   "<fontconfig><dir>/nowhere</dir></fontconfig>");
    deployment.set(QStringLiteral("FONTCONFIG_FILE"), deployment.graphics() + QStringLiteral("/fonts.conf"));
    const QString family = QStringLiteral("DejaVu Sans");
    const QStringList questions = words("font 13 -1 0 font 14 -1 0 font -1 -1 0 tooltip 11 53 0 families") << family;

    deployment.write(QStringLiteral("UIGraphics.xml"), "<a><Font Name='UIGFONT_KORSANS_MEDIUM'>DejaVu Sans</Font></a>");
    QCOMPARE(deployment.ask(questions).last(), QStringLiteral("no"));

    deployment.write(QStringLiteral("Fonts/KORZEMED.otf"), QByteArray());
    QFile::remove(deployment.graphics() + QStringLiteral("/Fonts/KORZEMED.otf"));
    QVERIFY(QFile::copy(anyFont, deployment.graphics() + QStringLiteral("/Fonts/KORZEMED.otf")));
    QCOMPARE(deployment.ask(questions),
             words("Arial,13px,-1pt,normal,antialias")
                 << QStringLiteral("DejaVu Sans,14px,-1pt,normal,antialias")
                 << words("Arial,-1px,10pt,normal,antialias Tahoma,11px,-1pt,normal,antialias yes"));
    QVERIFY(deployment.log().contains(QLatin1String("Standard Font is Kor Sans Medium")));

    // A language with a font of its own leaves the private one alone.
    deployment.set(QStringLiteral("ZEL_LANGUAGE"), QStringLiteral("ko"));
    QCOMPARE(deployment.ask(questions).mid(0, 2),
             words("Batang,13px,-1pt,normal,antialias Batang,14px,-1pt,normal,antialias"));
}

void tst_UiGraphics::oddFontFiles()
{
    Deployment deployment;
    deployment.write(QStringLiteral("Fonts/KORZEMED.otf"), "no font at all");
    deployment.write(QStringLiteral("UIGraphics.xml"), "<a><Font Name='UIGFONT_VERDANA'> </Font></a>");
    const QStringList answers = deployment.ask(words("font 14 -1 0 held UIGFONT_VERDANA"));
    QVERIFY(answers.value(0).startsWith(QLatin1String("KorSans Medium,14px")));
    QVERIFY(answers.value(1).endsWith(QLatin1String(",-1px,10pt,normal"))); // an empty family: the platform's own
    QVERIFY(deployment.log().contains(QLatin1String("CUIGraphics::initializeFont : not registered: ")));

    // A folder in the place of a file is no file.
    Deployment folders;
    folders.write(QStringLiteral("UIGraphics.xml/x"), "<a/>");
    QCOMPARE(folders.ask(words("color UIGCLR_WHITE")), words("#ffffffff"));
}

void tst_UiGraphics::fontAttributes()
{
    const Deployment deployment;
    QCOMPARE(
        deployment.ask(words("font -1 -1 0 font 20 75 1 underlined 16 -1 0 tooltip -1 75 1 held UIGFONT_SANS_SERIF "
                             "held UIGFONT_VERDANA held UIGFONT_SHELLDLG held other")),
        words("Tahoma,-1px,10pt,normal,antialias Tahoma,20px,-1pt,bold,italic,antialias "
              "Tahoma,16px,-1pt,normal,underline,antialias Tahoma,-1px,10pt,bold,italic,antialias "
              "SansSerif,-1px,10pt,normal Verdana,-1px,10pt,normal")
            << QStringLiteral("MS Shell Dlg,-1px,10pt,normal") << QStringLiteral("Tahoma,-1px,10pt,normal"));
}

void tst_UiGraphics::filesOfTheLanguageComeFirst()
{
    Deployment deployment;
    deployment.set(QStringLiteral("ZEL_LANGUAGE"), QStringLiteral("ja"));
    deployment.addBitmap(QStringLiteral("Close.png"), QSize(3, 4));
    deployment.addBitmap(QStringLiteral("Help.png"), QSize(5, 6));
    deployment.addBitmap(QStringLiteral("ja/Close.png"), QSize(7, 8));
    QCOMPARE(deployment.ask(words("pixmap Close.png 1 image Help.png pixmap None.png 1 icon Help.png path Help.png")),
             words("7x8@1 5x6@1 null icon") << deployment.graphics() + QStringLiteral("/Help.png"));
    QVERIFY(deployment.log().contains(
        QLatin1String("CUIGraphics::RetrieveFilePath : ERROR : Graphics path not found for: None.png\n")));
    QCOMPARE(deployment.ask(QStringList() << QStringLiteral("path") << QString()), QStringList(QString()));
    QVERIFY(deployment.log().contains(QLatin1String("CUIGraphics::RetrieveFilePath : File Name is Empty\n")));
}

void tst_UiGraphics::doubleResolution()
{
    const Deployment deployment;
    deployment.addBitmap(QStringLiteral("Close.png"), QSize(10, 10));
    deployment.addBitmap(QStringLiteral("Close@2x.png"), QSize(20, 20));
    deployment.addBitmap(QStringLiteral("Help.png"), QSize(10, 10));
    QCOMPARE(deployment.ask(words("pixmap Close.png 1 pixmap Close.png 2 pixmap Help.png 2")),
             words("10x10@1 20x20@2 10x10@1"));
}

void tst_UiGraphics::changedFilesAreReadAgain()
{
    const Deployment deployment;
    deployment.addBitmap(QStringLiteral("Close.png"), QSize(10, 10));
    deployment.addBitmap(QStringLiteral("other.png"), QSize(11, 10));
    const QString file = deployment.graphics() + QStringLiteral("/Close.png");
    const QString other = deployment.graphics() + QStringLiteral("/other.png");
    QCOMPARE(deployment.ask(words("pixmap Close.png 1 pixmap Close.png 1 replace")
                            << file << other << words("pixmap Close.png 1 pixmap other.png 1")),
             words("10x10@1 10x10@1 done 11x10@1 null"));
}

// The files say of themselves how large they are; unpacked they would take all memory.
void tst_UiGraphics::hugeBitmapsAreLeftOut()
{
    const Deployment deployment;
    deployment.addBitmap(QStringLiteral("Close.png"), QSize(4096, 1));
    deployment.addBitmap(QStringLiteral("Help.png"), QSize(4097, 1));
    deployment.addBitmap(QStringLiteral("restore.png"), QSize(1, 4097));
    QCOMPARE(deployment.ask(words("pixmap Close.png 1 image Close.png pixmap Help.png 1 image Help.png "
                                  "pixmap restore.png 1 image restore.png")),
             words("4096x1@1 4096x1@1 null null null null"));
}

void tst_UiGraphics::localizedPath()
{
    const Deployment deployment;
    const QString there = deployment.graphics();
    const QString question = QStringLiteral("localized");
    QCOMPARE(
        deployment.ask({question, there, question, there + QStringLiteral("/none"), question, QStringLiteral("   ")}),
        QStringList({there, there, QString()}));
    QCOMPARE(deployment.log().count(
                 QLatin1String("CUIGraphics::UIGetLocalizedPath - Error while retriving the localized path")),
             1);
}

HOUSE_TEST_MAIN(tst_UiGraphics)
#include "tst_UiGraphics.moc"
