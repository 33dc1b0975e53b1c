// lookcheck as a program: what it says of directories that are good, faulty and hostile.
#include "helpers/HouseTest.h"

#include "ContrastPairs.h"
#include "UiGraphicsBitmaps.h"
#include "UiGraphicsColors.h"
#include "UiGraphicsFonts.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr int runLimit = 60 * 1000; // milliseconds; a run takes less than one, with sanitizers some
constexpr int cannotRun = 2;
constexpr long mostMemory = 512L * 1024; // kilobytes; sanitizers included

const QString gallery = QStringLiteral(GALLERY); // empty: built without it
const QString xmlFile = QStringLiteral("UIGraphics.xml");
const QString closeIcon = QStringLiteral("Close.png");
const QString fontFile = QStringLiteral("Fonts/KORZEMED.otf");

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QStringList lines(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char('\n'));
}

/** What a table of the library calls things. */
template <typename Table, typename Name>
QStringList namesIn(const Table &table, Name name)
{
    QStringList names;
    for (const auto &row : table)
        names.append(QString::fromUtf16(row.*name));
    return names;
}

/** One run of a program to its end. */
struct Run
{
    explicit Run(const QStringList &arguments, const QString &program = QStringLiteral(LOOKCHECK))
    {
        QProcess process;
        process.start(program, arguments);
        hasEnded = process.waitForFinished(runLimit) && process.exitStatus() == QProcess::NormalExit;
        status = hasEnded ? process.exitCode() : -1;
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
    }

    QJsonObject json() const { return QJsonDocument::fromJson(output).object(); }

    bool hasEnded = false;
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

/** A copy of the artwork to spoil. */
class Deployment
{
public:
    Deployment()
    {
        const QDir artwork(QStringLiteral(ARTWORK));
        for (const QString &name : artwork.entryList({QStringLiteral("*.png")}, QDir::Files))
            copy(artwork.filePath(name), path(name));
    }

    // Not QFile::copy: it waits for the disk, which many small files make a long wait.
    static void copy(const QString &from, const QString &to)
    {
        QFile source(from);
        QFile target(to);
        QVERIFY(source.open(QIODevice::ReadOnly) && target.open(QIODevice::WriteOnly));
        QVERIFY(target.write(source.readAll()) > 0);
    }

    QString path(const QString &name = QString()) const { return m_directory.filePath(name); }

    void write(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), static_cast<qint64>(content.size()));
    }

    void scale(const QString &name, const QSize &size) const
    {
        QVERIFY(QImage(path(name)).scaled(size).save(path(name)));
    }

    /** "file:line severity" of each finding, as one sorted text per finding. */
    QStringList findings(const QStringList &options = QStringList()) const
    {
        const Run run(QStringList(options) << QStringLiteral("--json") << path());
        QStringList texts;
        const QJsonArray array = run.json().value(QStringLiteral("findings")).toArray();
        for (const auto &value : array) {
            const QJsonObject finding = value.toObject();
            texts.append(QStringLiteral("%1:%2 %3")
                             .arg(QDir(path()).relativeFilePath(finding.value(QStringLiteral("file")).toString()),
                                  QString::number(finding.value(QStringLiteral("line")).toInt()),
                                  finding.value(QStringLiteral("severity")).toString()));
        }
        texts.sort();
        if (run.status != (texts.isEmpty() ? 0 : 1))
            texts.append(QStringLiteral("exit status %1").arg(run.status));
        return texts;
    }

    QString text(const QStringList &options = QStringList()) const
    {
        return QString::fromUtf8(Run(QStringList(options) << path()).output);
    }

private:
    QTemporaryDir m_directory;
};

QByteArray colorXml(const char *name, const char *text)
{
    return QByteArray("<a>\n<Color Name='") + name + "'>" + text + "</Color>\n</a>";
}

} // namespace

class tst_LookCheck : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void ownArtworkIsClean();
    void tenFaultsAreTenFindings();
    void xmlFaults_data();
    void xmlFaults();
    void bitmapFaults_data();
    void bitmapFaults();
    void privateFont();
    void languageFolderHoldsWhatDiffers();
    void namesThatLibraryPassesOver();
    void linksToNowhere();
    void languageTags();
    void contrastIsToldOnce();
    void contrastPairsNameKeys();
    void keysAreListed();
    void partialDirectoryMayLackBitmaps();
    void contrastOfBitmaps();
    void textReportSaysWhereAndWhat();
    void cannotRun();
    void hostileFiles_data();
    void hostileFiles();
    void pipesAreNotWaitedFor();
    void tableIsTheArtwork();
    void tableKnowsWhatPaintersAskFor();
    void sheetShowsWhatDiffers();
    void sheetOfSameLook();
    void sheetThatCannotBe();
};

void tst_LookCheck::ownArtworkIsClean()
{
    // All languages, one with a font of its own and one without.
    for (const char *options : {"--json", "--json --language ja", "--json --language de"}) {
        const Run run(words(options) << QStringLiteral(ARTWORK));
        QCOMPARE(run.status, 0);
        QCOMPARE(run.json().value(QStringLiteral("findings")).toArray(), QJsonArray());
        // The look's own weak places are not hidden.
        QVERIFY(run.output.contains("UIGCLR_IMPUI_BLUTITLE on UIGCLR_LE_BACKGROUND, 3.2 to 1"));
    }
}

void tst_LookCheck::tenFaultsAreTenFindings()
{
    const Deployment deployment;
    QVERIFY(QFile::remove(deployment.path(closeIcon)));
    deployment.write(QStringLiteral("CheckboxActive.png"), "no bitmap");
    deployment.scale(QStringLiteral("PushbuttonWhiteLeftCap.png"), QSize(8, 20));
    deployment.scale(QStringLiteral("restore@2x.png"), QSize(15, 15));
    deployment.write(xmlFile, "<Look>\n"
                              "<Color Name='UIGCLR_PB_NORMAL_BOTOM'>8A2BE2</Color>\n"
                              "<Color Name='UIGCLR_PB_NORMAL_TOP'>#8A2BE2</Color>\n"
                              "<Color Name='UIGCLR_GLOW'>112233</Color>\n"
                              "<Color Name='UIGCLR_IMPUI_GRAYTITLE'>CCCCCC</Color>\n"
                              "<Color Name='UIGCLR_GLOW'>445566</Color>\n"
                              "<Font Name='UIGFONT_ARIAL'>No Such Sans</Font>\n"
                              "<Font Name='UIGFONT_KORSANS_MEDIUM'>No Such</Font>\n"
                              "</Look>\n");
    QCOMPARE(deployment.findings(), lines("CheckboxActive.png:0 error\n"
                                          "Close.png:0 error\n"
                                          "PushbuttonWhiteLeftCap.png:0 error\n"
                                          "UIGraphics.xml:2 warning\n"
                                          "UIGraphics.xml:3 error\n"
                                          "UIGraphics.xml:5 warning\n"
                                          "UIGraphics.xml:6 warning\n"
                                          "UIGraphics.xml:7 warning\n"
                                          "UIGraphics.xml:8 warning\n"
                                          "restore@2x.png:0 error"));
}

void tst_LookCheck::xmlFaults_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("finding"); // after the file's name, several with commas; empty for none
    QTest::addColumn<QString>("said");
    const auto row = [](const char *name, const QByteArray &xml, const char *finding, const char *said) {
        QTest::newRow(name) << xml << QString::fromLatin1(finding) << QString::fromLatin1(said);
    };
    row("good", colorXml("UIGCLR_GLOW", "8A2BE2"), "", "Nothing found");
    row("good, with alpha", colorXml("UIGCLR_GLOW", "FF8A2BE2"), "", "Nothing found");
    row("alpha at the end", colorXml("UIGCLR_GLOW", "8A2BE2FF"), ":2 warning",
        "If it is meant as RRGGBBAA, write 8A2BE2");
    row("another alpha", colorXml("UIGCLR_GLOW", "808A2BE2"), "", "Nothing found");
    row("element in lower case", "<a>\n<color Name='UIGCLR_GLOW'>8A2BE2</color></a>", ":2 warning",
        "no element \"color\"");
    row("British element", "<a>\n<Colour name='UIGCLR_GLOW'>8A2BE2</Colour></a>", ":2 warning",
        "no element \"Colour\"");
    row("font in lower case", "<a>\n<font Name='UIGFONT_ARIAL'>Arial</font></a>", ":2 warning", "no element \"font\"");
    row("key as element", "<a>\n<UIGCLR_GLOW>8A2BE2</UIGCLR_GLOW></a>", ":2 warning", "<Color Name=\"UIGCLR_GLOW\">");
    row("another element with a key", "<a>\n<Entry Name='UIGCLR_GLOW'/></a>", ":2 warning", "no element \"Entry\"");
    row("elements for order",
        "<UIGraphics><Colors Name='x'><Color "
        "Name='UIGCLR_GLOW'>8A2BE2</Color></Colors><Fonts/><Meta>x</Meta></UIGraphics>",
        "", "Nothing found");
    row("Latin-1", "<a>\n<!-- x -->\n<!-- \xE4 -->\n</a>", ":3 error", "Save it as UTF-8");
    row("Latin-1, declared", "<?xml version='1.0' encoding='ISO-8859-1'?>\n<a>\n<!-- \xE4 --></a>", "",
        "Nothing found");
    row("unknown key", colorXml("UIGCLR_GLOV", "8A2BE2"), ":2 warning", "nearest key is UIGCLR_GLOW.");
    row("key in lower case", colorXml("uigclr_glow", "8A2BE2"), ":2 warning", "nearest key is UIGCLR_GLOW.");
    row("key far from any", colorXml("Ceiling", "8A2BE2"), ":2 warning", "lookcheck --keys");
    row("key of the other kind", colorXml("UIGFONT_ARIAL", "8A2BE2"), ":2 warning", "no key of a Color");
    row("leading #", colorXml("UIGCLR_GLOW", "#8A2BE2"), ":2 error", "begins with a #");
    row("no number", colorXml("UIGCLR_GLOW", "purple"), ":2 error", "no hexadecimal number");
    row("too long", colorXml("UIGCLR_GLOW", "8A2BE28A2BE2"), ":2 error", "too long");
    row("a function", colorXml("UIGCLR_GLOW", "rgb(1,2,3)"), ":2 error", "is no hexadecimal number and gives black");
    row("overridden", "<a>\n<Color Name='UIGCLR_GLOW'>red</Color><Color Name='UIGCLR_GLOW'>8A2BE2</Color></a>",
        ":2 error,:2 warning", "is no hexadecimal number.\n");
    row("too short", colorXml("UIGCLR_GLOW", "F0F"), ":2 warning", "gives the colour #000F0F");
    row("empty", colorXml("UIGCLR_GLOW", " "), ":2 error", "no text");
    row("black ground, told once", colorXml("UIGCLR_PALETTE_ACTIVE_BASE", "#FFFFFF"), ":2 error", "1 error, 0 warn");
    row("black ground", colorXml("UIGCLR_PALETTE_ACTIVE_BASE", "111111"), ":2 warning", "lists and text areas (");
    row("grey between the ends", "<a>\n<Color Name='UIGCLR_RECTGRAD1'>000000</Color></a>", ":2 warning",
        "tabs (UIGCLR_PALETTE_ACTIVE_FOREGROUND on UIGCLR_RECTGRAD1 to UIGCLR_RECTGRAD2, 1.0 to 1)");
    row("weak as built in", colorXml("UIGCLR_IMPUI_BLUTITLE", "3399CC"), "", "Nothing found");
    row("no Name", "<a>\n\n<Color name='UIGCLR_GLOW'>8A2BE2</Color></a>", ":3 warning", "without a Name");
    row("not closed", "<a>\n<Color Name='UIGCLR_GLOW'>8A2BE2</Color>\n", ":3 error", "no effect at all");
    row("empty family", "<a>\n<Font Name='UIGFONT_ARIAL'/></a>", ":2 warning", "system's own font");
    row("endless family",
        QByteArray("<a>\n<Font Name='UIGFONT_ARIAL'>DejaVu Sans,") + QByteArray(300, 'x') + "</Font></a>", ":2 warning",
        "longer than 256");
}

void tst_LookCheck::xmlFaults()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, finding);
    QFETCH(QString, said);
    const Deployment deployment;
    deployment.write(xmlFile, xml);
    QStringList expected;
    if (!finding.isEmpty())
        for (const QString &each : finding.split(QLatin1Char(',')))
            expected.append(xmlFile + each);
    QCOMPARE(deployment.findings(), expected);
    const QString text = deployment.text();
    QVERIFY2(text.contains(said), qPrintable(text));
}

void tst_LookCheck::bitmapFaults_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("said"); // empty: no finding
    const auto row = [](const char *name, const char *bitmap, const QSize &size, const char *said) {
        QTest::newRow(name) << QString::fromLatin1(bitmap) << size << QString::fromLatin1(said);
    };
    row("lower middle", "PushbuttonGreenBlit.png", QSize(4, 26), "is 4 x 26 pixels and should be 27 high");
    row("check box of another size", "CheckboxActiveHover.png", QSize(13, 12),
        "14 wide as the other check boxes, and 14");
    row("lower mask", "status-rainbow-mask-left.png", QSize(8, 12), "should be 16 high as the other masks");
    row("strip lower than its mask", "status-rainbow.png", QSize(960, 12), "at least 16 high");
    row("narrower groove", "BlueCenterScrollBarVGrooveBlt.png", QSize(17, 4), "wide as the other");
    row("twin too small", "Close@2x.png", QSize(19, 20), "not twice as large as its original of 10 x 10");
    row("of its own size", "ddScrollbarSliderGrayBlit@2x.png", QSize(36, 8), "");
}

void tst_LookCheck::bitmapFaults()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QFETCH(QString, said);
    const Deployment deployment;
    deployment.scale(name, size);
    const QStringList findings = deployment.findings();
    const QString text = deployment.text();
    if (said.isEmpty()) {
        QCOMPARE(findings, QStringList());
        return;
    }
    QCOMPARE(static_cast<int>(findings.size()), 1);
    QVERIFY2(text.contains(said), qPrintable(text));
    QVERIFY2(findings.constFirst().startsWith(name), qPrintable(findings.constFirst()));
}

void tst_LookCheck::privateFont()
{
    const QString testFont = QStringLiteral(TEST_FONT);
    if (!QFile::exists(testFont))
        QSKIP("No DejaVu Sans here");
    const QString &font = fontFile;
    const Deployment deployment;
    QVERIFY(QDir(deployment.path()).mkdir(QStringLiteral("Fonts")));
    QCOMPARE(deployment.findings(), QStringList(font + QStringLiteral(":0 warning"))); // a folder, but no font
    deployment.write(font, "no font");
    QCOMPARE(deployment.findings(), QStringList(font + QStringLiteral(":0 error")));
    QCOMPARE(deployment.findings(words("--language ja")), QStringList()); // has another font
    QVERIFY(QFile::remove(deployment.path(font)) && QFile::copy(testFont, deployment.path(font)));
    QCOMPARE(deployment.findings(), QStringList(font + QStringLiteral(":0 error")));
    QVERIFY(deployment.text().contains(QStringLiteral("\"DejaVu Sans\", and UIGFONT_KORSANS_MEDIUM says")));
    deployment.write(xmlFile, "<a><Font Name='UIGFONT_KORSANS_MEDIUM'>DejaVu Sans</Font></a>");
    QCOMPARE(deployment.findings(), QStringList());
}

void tst_LookCheck::languageFolderHoldsWhatDiffers()
{
    const Deployment deployment;
    deployment.write(xmlFile, colorXml("UIGCLR_GLOW", "#112233"));
    deployment.write(QStringLiteral("ja/UIGraphics.xml"), colorXml("UIGCLR_GLOW", "zz"));
    QVERIFY(
        QFile::copy(deployment.path(QStringLiteral("restore.png")), deployment.path(QStringLiteral("ja/Restore.png"))));
    QVERIFY(QFile::copy(deployment.path(closeIcon), deployment.path(QStringLiteral("ja/Close.png"))));
    deployment.scale(QStringLiteral("ja/Close.png"), QSize(12, 12));
    const QStringList both = lines("UIGraphics.xml:2 error\n"
                                   "ja/Close.png:0 error\n"
                                   "ja/Restore.png:0 warning\n"
                                   "ja/UIGraphics.xml:2 error");
    QCOMPARE(deployment.findings(words("--language de")), lines("UIGraphics.xml:2 error"));
    QCOMPARE(deployment.findings(words("--language ja")), both);
    QCOMPARE(deployment.findings(), both);
}

void tst_LookCheck::namesThatLibraryPassesOver()
{
    const Deployment deployment;
    for (const char *name : {"UIGraphics.xml.txt", "ja_JP/UIGraphics.xml", "jp/UIGraphics.xml", "ja/fonts/KORZEMED.otf",
                             "ko/Fonts/KORZEMED.otf", "ja/UIGraphics.xml", "ko/UIGraphics.xml"})
        deployment.write(QLatin1String(name), "<a/>");
    QCOMPARE(deployment.findings(), lines("UIGraphics.xml.txt:0 warning\n"
                                          "ja/fonts:0 warning\n"
                                          "ja_JP:0 warning\n"
                                          "jp:0 warning\n"
                                          "ko/Fonts/KORZEMED.otf:0 warning"));
    QVERIFY(deployment.text().contains(QStringLiteral("Is it meant to be \"ja\"?")));
}

void tst_LookCheck::linksToNowhere()
{
    const Deployment deployment;
    for (const QString &target : {QStringLiteral("/no/such/file"), deployment.path(xmlFile)}) { // nothing, and itself
        QFile::remove(deployment.path(xmlFile));
        QVERIFY(QFile::link(target, deployment.path(xmlFile)));
        QCOMPARE(deployment.findings(), lines("UIGraphics.xml:0 error"));
    }
}

void tst_LookCheck::languageTags()
{
    const Deployment deployment;
    deployment.write(QStringLiteral("ko/UIGraphics.xml"), "<");
    deployment.write(QStringLiteral("house/UIGraphics.xml"), "<");
    // A language, its alias, a locale, the application's own language; a country and a way out.
    const std::pair<const char *, int> tags[] = {{"zh-cht", 0}, {"zh-tw", 0},        {"ko_KR.UTF-8", 1},
                                                 {"house", 1},  {"jp", ::cannotRun}, {"../x", ::cannotRun}};
    for (const auto &[tag, status] : tags) {
        const Run run({QStringLiteral("--language"), QLatin1String(tag), deployment.path()});
        QVERIFY2(run.status == status && run.output.isEmpty() == (status == ::cannotRun), tag);
    }
}

// A line of the common file makes the same place hard to read in each language.
void tst_LookCheck::contrastIsToldOnce()
{
    const Deployment deployment;
    deployment.write(xmlFile, colorXml("UIGCLR_RECTGRAD1", "000000"));
    deployment.write(QStringLiteral("ja/UIGraphics.xml"), colorXml("UIGCLR_RECTGRAD2", "FAFAFA"));
    deployment.write(QStringLiteral("ko/UIGraphics.xml"), colorXml("UIGCLR_GLOW", "101010"));
    const QStringList once{QStringLiteral("UIGraphics.xml:2 warning")};
    QCOMPARE(deployment.findings(), once);
    deployment.write(QStringLiteral("ja/UIGraphics.xml"), colorXml("UIGCLR_RECTGRAD2", "101010"));
    QCOMPARE(deployment.findings(), once + QStringList(QStringLiteral("ja/UIGraphics.xml:2 warning")));
}

void tst_LookCheck::contrastPairsNameKeys()
{
    const QStringList keys = namesIn(colorDefaults, &ColorDefault::key);
    const QStringList bitmaps = namesIn(lookBitmaps, &LookBitmap::name);
    QSet<QString> places;
    for (const lookcheck::ContrastPair &pair : lookcheck::contrastPairs) {
        for (const char *key : {pair.text, pair.ground, pair.groundEnd})
            QVERIFY2(key == nullptr || keys.contains(QLatin1String(key)), key);
        QVERIFY2(pair.bitmap == nullptr || bitmaps.contains(QString::fromUtf16(pair.bitmap)), pair.where);
        QVERIFY2(!places.contains(QLatin1String(pair.where)), pair.where);
        places.insert(QLatin1String(pair.where));
    }
}

void tst_LookCheck::keysAreListed()
{
    const Run run({QStringLiteral("--keys")});
    QCOMPARE(run.status, 0);
    QCOMPARE(static_cast<int>(run.output.count('\n')),
             static_cast<int>(std::size(colorDefaults) + std::size(familyDefaults)));
    static const QRegularExpression glow(QStringLiteral("(?m)^UIGCLR_GLOW +B4DCFF$"));
    QVERIFY(QString::fromUtf8(run.output).contains(glow));
}

void tst_LookCheck::partialDirectoryMayLackBitmaps()
{
    const QTemporaryDir empty;
    const Run whole({empty.path()});
    QCOMPARE(whole.status, 1);
    QCOMPARE(static_cast<int>(whole.output.count("The bitmap is missing")), static_cast<int>(std::size(lookBitmaps)));
    QCOMPARE(Run({QStringLiteral("--partial"), empty.path()}).status, 0);
}

void tst_LookCheck::contrastOfBitmaps()
{
    const Deployment deployment;
    QImage middle(deployment.path(QStringLiteral("PushbuttonGreenBlit.png")));
    middle.fill(QColor(0xA0, 0xE0, 0xB0));
    QVERIFY(middle.save(deployment.path(QStringLiteral("PushbuttonGreenBlit.png"))));
    QCOMPARE(deployment.findings(), QStringList(QStringLiteral("PushbuttonGreenBlit.png:0 warning")));
    QVERIFY(deployment.text().contains(QStringLiteral("green push buttons (UIGCLR_WHITE on the bitmap, 1.5 to 1)")));
}

void tst_LookCheck::textReportSaysWhereAndWhat()
{
    const Deployment deployment;
    deployment.write(xmlFile, colorXml("UIGCLR_GL\u009bOW\u202e", "8A2BE2"));
    QVERIFY(
        QFile::rename(deployment.path(QStringLiteral("restore.png")), deployment.path(QStringLiteral("Restore.png"))));
    const QString text = deployment.text();
    QVERIFY(text.contains(deployment.path(QStringLiteral("UIGraphics.xml:2: warning: \"UIGCLR_GL?OW?\" is no key"))));
    QVERIFY(text.contains(QStringLiteral("Is it \"Restore.png\"?")));
    QVERIFY(text.contains(QStringLiteral("1 error, 1 warning; ")));
    QVERIFY(!text.contains(QStringLiteral(": note: ")));
    QVERIFY(deployment.text({QStringLiteral("--notes")}).contains(QStringLiteral(": note: ")));
}

void tst_LookCheck::cannotRun()
{
    for (const char *arguments : {"", "/no/such/look", LOOKCHECK, "/ /", "--beautify /"}) {
        const Run run(QString::fromLatin1(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QVERIFY2(run.status == ::cannotRun && run.errors.contains("lookcheck: ") && run.output.isEmpty(), arguments);
    }
}

void tst_LookCheck::hostileFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<qint64>("size"); // blown up to it
    QTest::addColumn<QString>("said");
    const auto row = [](const char *what, const QString &name, const QByteArray &content, const char *said,
                        qint64 size = 0) {
        QTest::newRow(what) << name << content << size << QString::fromLatin1(said);
    };
    const qint64 large = qint64(100) * 1024 * 1024;
    QByteArray laughs = "<!DOCTYPE a [<!ENTITY l0 'ha'>";
    for (int i = 1; i < 30; ++i)
        laughs += QStringLiteral("<!ENTITY l%1 '&l%2;&l%2;'>").arg(i).arg(i - 1).toLatin1();
    row("nested entities", xmlFile, laughs + "]><a><Color Name='UIGCLR_GLOW'>&l29;</Color></a>", "no effect at all");
    row("100 megabytes", xmlFile, "<a>", "larger than a megabyte and was not read", large);
    row("deep", xmlFile, QByteArray("<Color Name=\"\">x").repeated(30000), "no effect at all");
    row("thousands of names", xmlFile, "<a>" + QByteArray("<Color Name='UIGCLR_X'/>\n").repeated(20000) + "</a>",
        "19900 more like these");
    row("bitmap bomb", closeIcon, Picture::png(Picture::hugeSide), "no control is that large. Nothing is drawn.");
    row("bitmap without content", closeIcon, Picture::png(64).left(90), "is damaged");
    row("empty bitmap", closeIcon, "", "is damaged");
    row("giant bitmap", closeIcon, "\x89PNG", "larger than 16 megabytes. It was not checked.", large);
    row("drawing", closeIcon, "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>",
        "This is an SVG drawing. It is drawn only where Qt");
    row("directory's remedy", xmlFile + QStringLiteral("/x"), "x", "Put a file there");
}

void tst_LookCheck::hostileFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(qint64, size);
    QFETCH(QString, said);
    const Deployment deployment;
    deployment.write(name, content);
    if (size > 0)
        QVERIFY(QFile::resize(deployment.path(name), size));
    const Run run({deployment.path()});
    QVERIFY(run.hasEnded);
    QCOMPARE(run.status, 1);
    QVERIFY2(run.output.contains(said.toUtf8()), run.output.constData());
    rusage usage{};
    QCOMPARE(getrusage(RUSAGE_CHILDREN, &usage), 0);
    QVERIFY2(usage.ru_maxrss < mostMemory, qPrintable(QString::number(usage.ru_maxrss)));
}

void tst_LookCheck::pipesAreNotWaitedFor()
{
    const Deployment deployment;
    const QStringList names{closeIcon, fontFile, xmlFile};
    QVERIFY(QDir(deployment.path()).mkdir(QStringLiteral("Fonts")));
    QStringList expected;
    for (const QString &name : names) {
        QFile::remove(deployment.path(name));
        QCOMPARE(mkfifo(QFile::encodeName(deployment.path(name)).constData(), 0600), 0);
        expected.append(name + QStringLiteral(":0 error"));
    }
    QCOMPARE(deployment.findings(), expected);
}

void tst_LookCheck::tableIsTheArtwork()
{
    QStringList table = namesIn(lookBitmaps, &LookBitmap::name);
    table.sort();
    QStringList artwork;
    for (const QString &name : QDir(QStringLiteral(ARTWORK)).entryList({QStringLiteral("*.png")}))
        if (!name.contains(QLatin1Char('@')))
            artwork.append(name);
    artwork.sort();
    QCOMPARE(table, artwork);
}

// The painters put names together from pieces. What they ask the registry for, it writes down.
void tst_LookCheck::tableKnowsWhatPaintersAskFor()
{
    if (gallery.isEmpty())
        QSKIP("Built without the gallery");
    const QTemporaryDir directory;
    const QString log = directory.filePath(QStringLiteral("log"));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZEL_GRAPHICS_DIR"), QStringLiteral(ARTWORK));
    environment.insert(QStringLiteral("ZEL_LOG"), QStringLiteral("trace"));
    environment.insert(QStringLiteral("ZEL_LOG_FILE"), log);
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(gallery, {QStringLiteral("--pictures"), directory.filePath(QStringLiteral("pictures"))});
    QVERIFY(process.waitForFinished(runLimit));
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString records = QString::fromUtf8(file.readAll());
    const QStringList known = namesIn(lookBitmaps, &LookBitmap::name);
    QSet<QString> asked;
    static const QRegularExpression record(QStringLiteral("RetrieveFilePath\\(([^)]*\\.png)\\)"));
    for (auto matches = record.globalMatch(records); matches.hasNext();)
        asked.insert(matches.next().captured(1));
    QVERIFY(asked.size() > 50);
    QCOMPARE(asked - QSet<QString>(known.begin(), known.end()), QSet<QString>());
}

namespace {

/** The page of --sheet. */
struct SheetPage
{
    explicit SheetPage(const Deployment &deployment)
    {
        const QTemporaryDir directory;
        QFile file(directory.filePath(QStringLiteral("sheet.html")));
        run = std::make_unique<Run>(QStringList{QStringLiteral("--sheet"), file.fileName(), deployment.path()});
        if (file.open(QIODevice::ReadOnly))
            html = QString::fromUtf8(file.readAll());
    }

    /** The text of the page of the gallery up to what is unchanged there. */
    QString changedOf(const QString &title) const
    {
        return html.section(QStringLiteral("\">%1 <small>").arg(title), 1, 1).section(QStringLiteral("<details"), 0, 0);
    }

    /** What a picture shows; its alternative text says which one it is. */
    QImage picture(const QString &alternative) const
    {
        const QString start = QStringLiteral("alt=\"%1\" src=\"data:image/png;base64,").arg(alternative);
        const QString data = html.section(start, 1, 1).section(QLatin1Char('"'), 0, 0);
        return QImage::fromData(QByteArray::fromBase64(data.toLatin1()));
    }

    std::unique_ptr<Run> run;
    QString html;
};

int pixelsOf(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    return count;
}

} // namespace

void tst_LookCheck::sheetShowsWhatDiffers()
{
    if (gallery.isEmpty())
        QSKIP("Built without the gallery");
    const Deployment deployment;
    deployment.write(xmlFile, colorXml("UIGCLR_PE_PANELTIPLABEL_GRAD1", "00AA00"));
    for (const char *name : {"CheckboxActive.png", "RadiobuttonActive@2x.png"}) {
        QImage box(deployment.path(QLatin1String(name)));
        box.fill(Qt::red);
        QVERIFY(box.save(deployment.path(QLatin1String(name))));
    }
    const SheetPage page(deployment);
    QVERIFY2(page.run->status == 0, page.run->errors.constData());

    const QString box = QStringLiteral("Check boxes, States, CCheckBoxEx: Normal, ");
    QVERIFY(page.changedOf(QStringLiteral("Check boxes")).contains(box));
    QCOMPARE(pixelsOf(page.picture(box + QStringLiteral("before")), Qt::red), 0);
    QVERIFY(pixelsOf(page.picture(box + QStringLiteral("after")), Qt::red) > 100);
    const QString tip = QStringLiteral("Standard widgets, Tool tips, One line, ");
    const auto isGreen = [](const QColor &color) {
        return color.green() > 2 * color.red() && color.green() > 2 * color.blue();
    };
    QVERIFY(!isGreen(page.picture(tip + QStringLiteral("before")).pixelColor(0, 0)));
    QVERIFY(isGreen(page.picture(tip + QStringLiteral("after")).pixelColor(0, 0)));
    const QString twin = QStringLiteral("Standard widgets, Buttons, QRadioButton: Normal, after");
    QVERIFY(
        page.changedOf(QStringLiteral("Standard widgets")).contains(QStringLiteral("Only on screens of high density")));
    QVERIFY(pixelsOf(page.picture(twin), Qt::red) > 100);

    QVERIFY(page.changedOf(QStringLiteral("Sliders")).isEmpty());
    QVERIFY(page.html.contains(QStringLiteral(">Sliders</a> <small>unchanged<")));
    QVERIFY(page.html.contains(QStringLiteral("alt=\"Sliders, ")));
    QCOMPARE(page.html.count(QStringLiteral(", before\"")), page.html.count(QStringLiteral(", after\"")));
    // Nothing beside the page itself.
    QCOMPARE(page.html.count(QStringLiteral("src=")),
             page.html.count(QStringLiteral("src=\"data:image/png;base64,iVBOR")));
    QVERIFY(!page.html.contains(QStringLiteral("href=\"http")));
}

void tst_LookCheck::sheetOfSameLook()
{
    if (gallery.isEmpty())
        QSKIP("Built without the gallery");
    const Deployment deployment;
    deployment.write(xmlFile, "<a>\n<Color></a>");
    const SheetPage page(deployment);
    QCOMPARE(page.run->status, 1);
    const QString fault = QStringLiteral("UIGraphics.xml:2: The file has no effect at all: ");
    QVERIFY(page.html.contains(fault));
    QVERIFY(page.run->errors.contains(fault.toUtf8()));
    QVERIFY(page.html.contains(QStringLiteral(" specimens are drawn as in the built-in look.")));
}

void tst_LookCheck::sheetThatCannotBe()
{
    const Deployment deployment;
    const QString page = deployment.path(QStringLiteral("sheet.html"));
    const QStringList sheet{QStringLiteral("--sheet"), page};
    for (const char *noGallery : {"--gallery /no/gallery", "--gallery /bin/false"})
        QCOMPARE(Run(sheet + words(noGallery) + QStringList(deployment.path())).status, ::cannotRun);
    deployment.write(QStringLiteral("Close@2x.png"), Picture::png(Picture::hugeSide));
    const Run bomb(sheet + QStringList(deployment.path()));
    QCOMPARE(bomb.status, ::cannotRun);
    QVERIFY(bomb.errors.contains("Close@2x.png' is too large"));
    QVERIFY(!QFile::exists(page));
}

HOUSE_TEST_MAIN(tst_LookCheck)
#include "tst_LookCheck.moc"
