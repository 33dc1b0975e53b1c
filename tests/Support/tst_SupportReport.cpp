#include "helpers/HouseTest.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

struct Output
{
    QString printed;
    QString errors;
};

/** A deployer's directory of a look, and applications that run with it. */
class Deployment
{
public:
    /** With the switch that asks for the report. */
    explicit Deployment(const QString &wanted = QStringLiteral("1")) { set(QStringLiteral("ZEL_SUPPORT"), wanted); }

    void write(const QString &name, const QByteArray &content) const
    {
        const QString path = m_dir.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QString path(const QString &name = QString()) const { return name.isEmpty() ? m_dir.path() : m_dir.filePath(name); }

    void set(const QString &variable, const QString &value) { m_variables.insert(variable, value); }

    Output run(const QStringList &arguments, const QString &probe = QStringLiteral(PROBE)) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("ZEL_GRAPHICS_DIR"), m_dir.path());
        for (auto it = m_variables.begin(); it != m_variables.end(); ++it)
            environment.insert(it.key(), it.value());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(probe, arguments);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            return {QStringLiteral("probe failed"), QString::fromLocal8Bit(process.readAllStandardError())};
        return {QString::fromLocal8Bit(process.readAllStandardOutput()),
                QString::fromLocal8Bit(process.readAllStandardError())};
    }

private:
    QTemporaryDir m_dir;
    QMap<QString, QString> m_variables;
};

constexpr int keyWidth = 20;

/** The values of a key, one per line of the report. */
QStringList values(const QString &report, const char *key)
{
    const QString wanted = QString::fromUtf8(key).leftJustified(keyWidth);
    QStringList found;
    bool isOurs = false;
    for (const QString &line : report.split(QLatin1Char('\n'))) {
        const QString head = line.left(keyWidth);
        isOurs = head == wanted || (isOurs && head.trimmed().isEmpty() && !line.isEmpty());
        if (isOurs)
            found.append(line.mid(keyWidth));
    }
    return found;
}

QString value(const QString &report, const char *key)
{
    return values(report, key).join(QLatin1Char('|'));
}

const QStringList look = {QStringLiteral("look")};

} // namespace

class tst_SupportReport : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatRuns();
    void tellsQtThatRunsFromQtThatWasBuiltWith();
    void tellsWhatWasReadAndMissed();
    void tellsOfFonts();
    void tellsOfMissingDirectory();
    void startsNothing();
    void isSilentUnlessAsked();
    void goesToFile();
    void goesToErrorsWhereFileCannotBeWritten();
    void worksWithoutUtilityLibrary();
    void tellsOfIncompleteUtilityLibrary();
    void worksWithoutGui_data();
    void worksWithoutGui();
};

void tst_SupportReport::tellsWhatRuns()
{
    const Deployment deployment;
    const QString report = deployment.run(look).errors;
    QCOMPARE(value(report, "library"), QStringLiteral(LIBRARY_VERSION));
    QCOMPARE(value(report, "Qt, running"), QString::fromLatin1(qVersion()));
    QCOMPARE(value(report, "Qt, built with"), QStringLiteral(QT_VERSION_STR));
    QVERIFY(value(report, "application").startsWith(QStringLiteral(PROBE)));
    QVERIFY(value(report, "window system").startsWith(QLatin1String("offscreen, ")));
    QVERIFY2(value(report, "style in force").startsWith(QLatin1String("CCommonControlStyle")), qPrintable(report));
    const QStringList bases = {QStringLiteral("QPlastiqueStyle (plastique)"), QStringLiteral("QFusionStyle (fusion)")};
    QVERIFY2(bases.contains(values(report, "  base style").value(0)), qPrintable(report));
    QCOMPARE(value(report, "utility library"), QFileInfo(QStringLiteral(UTILITY_LIBRARY)).canonicalFilePath());
    QVERIFY(values(report, "environment").contains(QStringLiteral("ZEL_SUPPORT=1")));
}

void tst_SupportReport::tellsQtThatRunsFromQtThatWasBuiltWith()
{
    Deployment deployment;
    deployment.set(QStringLiteral("LD_PRELOAD"), QStringLiteral(OTHER_QT));
    deployment.set(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0:detect_leaks=0"));
    const QString report = deployment.run({QStringLiteral("none"), QStringLiteral("call")}).printed;
    QCOMPARE(value(report, "Qt, running"), QStringLiteral("9.8.7"));
    QCOMPARE(value(report, "Qt, built with"), QStringLiteral(QT_VERSION_STR));
}

void tst_SupportReport::tellsWhatWasReadAndMissed()
{
    Deployment deployment;
    deployment.set(QStringLiteral("ZEL_LANGUAGE"), QStringLiteral("ko"));
    deployment.write(QStringLiteral("Broken.png"), "no picture");
    deployment.write(QStringLiteral("UIGraphics.xml"),
                     "<a><Color Name='UIGCLR_WHITE'>111111</Color><Color Name='UIGCLR_RED'>222222</Color><Color "
                     "Name='UIGCLR_ROT'>333333</Color><Font Name='UIGFONT_KO'>Nanum</Font></a>");
    QString report = deployment.run(look).errors;
    QCOMPARE(value(report, "language"), QStringLiteral("ko"));
    QCOMPARE(value(report, "graphics directory"), deployment.path());
    QCOMPARE(value(report, "XML files read"), deployment.path(QStringLiteral("UIGraphics.xml")) +
                                                  QStringLiteral(": 2 colours, 1 fonts; no keys: UIGCLR_ROT"));
    QCOMPARE(value(report, "  not there"), deployment.path(QStringLiteral("ko/UIGraphics.xml")));
    QCOMPARE(values(report, "bitmaps not found").count(QStringLiteral("None.png")), 1);
    QVERIFY(values(report, "bitmaps not found").contains(QStringLiteral("PushbuttonWhiteBlit.png")));
    QCOMPARE(value(report, "  not readable"), deployment.path(QStringLiteral("Broken.png")));

    deployment.write(QStringLiteral("UIGraphics.xml"),
                     "<a><Color Name='UIGCLR_WHITE'>#111111</Color><Color Name='UIGCLR_RED'>red</Color><Color "
                     "Name='UIGCLR_RED'>222222</Color></a>");
    report = deployment.run(look).errors;
    QVERIFY2(value(report, "XML files read")
                 .endsWith(QLatin1String("0 fonts; black, for want of a number: UIGCLR_WHITE \"#111111\"")),
             qPrintable(report));

    deployment.write(QStringLiteral("UIGraphics.xml"), "<a>\n<b>\n</a>");
    report = deployment.run(look).errors;
    QVERIFY2(value(report, "XML files read").contains(QLatin1String(": without effect, line 3: ")), qPrintable(report));
}

void tst_SupportReport::tellsOfFonts()
{
    Deployment deployment;
    deployment.write(QStringLiteral("UIGraphics.xml"), "<a><Font Name='UIGFONT_TAHOMA'>DejaVu Sans</Font></a>");
    QString report = deployment.run(look).errors;
    QCOMPARE(values(report, "fonts").value(0), QStringLiteral("standard: \"DejaVu Sans\""));
    const QString verdana = values(report, "fonts").filter(QLatin1String("Verdana: ")).value(0);
    QVERIFY2(verdana.startsWith(QLatin1String("Verdana: \"Verdana\" asked for, \"")), qPrintable(verdana));
    QVERIFY2(verdana.endsWith(QLatin1String("\" in its place")), qPrintable(verdana));
    QCOMPARE(value(report, "  private font"), QStringLiteral("none"));

    deployment.write(QStringLiteral("Fonts/KORZEMED.otf"), "no font");
    report = deployment.run(look).errors;
    QCOMPARE(value(report, "  private font"),
             deployment.path(QStringLiteral("Fonts/KORZEMED.otf")) + QStringLiteral(", which is no font"));
}

void tst_SupportReport::tellsOfMissingDirectory()
{
    Deployment deployment;
    deployment.set(QStringLiteral("ZEL_GRAPHICS_DIR"), QStringLiteral("/nowhere/look"));
    QCOMPARE(value(deployment.run(look).errors, "graphics directory"),
             QStringLiteral("/nowhere/look, which is not there"));
}

void tst_SupportReport::startsNothing()
{
    const QString report = Deployment().run({QStringLiteral("idle")}).errors;
    QCOMPARE(value(report, "look registry"), QStringLiteral("not started: nobody has asked for a look yet"));
    QCOMPARE(values(report, "language"), QStringList());
}

void tst_SupportReport::isSilentUnlessAsked()
{
    for (const QString &setting : {QString(), QStringLiteral("0")})
        QCOMPARE(Deployment(setting).run(look).errors, QString());
    QVERIFY(!QFile::exists(QStringLiteral("0")));
}

void tst_SupportReport::goesToFile()
{
    Deployment deployment;
    const QString target = deployment.path(QStringLiteral("report.txt"));
    deployment.write(QStringLiteral("report.txt"), "an older one");
    deployment.set(QStringLiteral("ZEL_SUPPORT"), target);
    const Output output = deployment.run({QStringLiteral("look"), QStringLiteral("call")});
    QCOMPARE(output.errors, QString());
    QFile file(target);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), output.printed); // the call and the variable say the same
    QVERIFY(output.printed.startsWith(QLatin1String("library ")));
}

void tst_SupportReport::goesToErrorsWhereFileCannotBeWritten()
{
    const QString errors = Deployment(QStringLiteral("/nowhere/report.txt")).run(look).errors;
    QVERIFY2(errors.startsWith(QLatin1String("ZEL_SUPPORT: cannot write '/nowhere/report.txt': ")), qPrintable(errors));
    QCOMPARE(value(errors, "library"), QStringLiteral(LIBRARY_VERSION));
}

void tst_SupportReport::worksWithoutUtilityLibrary()
{
    // A file that is no library stands in the way of one that may be installed on this machine.
    Deployment deployment;
    deployment.write(QStringLiteral("libZelCUtil03.so"), QByteArray());
    deployment.set(QStringLiteral("LD_LIBRARY_PATH"), deployment.path());
    const QString report = deployment.run(look, QStringLiteral(PROBE_ALONE)).errors;
    QCOMPARE(value(report, "library"), QStringLiteral(LIBRARY_VERSION));
    QCOMPARE(value(report, "utility library"), QStringLiteral("not found"));
    QVERIFY2(value(report, "  problem").contains(QLatin1String("ZelCUtil03")), qPrintable(report));
    QCOMPARE(value(report, "look registry"), QStringLiteral("not started: colours are black"));
}

void tst_SupportReport::tellsOfIncompleteUtilityLibrary()
{
    Deployment deployment;
    deployment.set(QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral(INCOMPLETE_UTILITY));
    const QString report = deployment.run(look, QStringLiteral(PROBE_ALONE)).errors;
    const QString wanted = QFileInfo(QStringLiteral(INCOMPLETE_UTILITY)).canonicalFilePath();
    QCOMPARE(QFileInfo(value(report, "utility library")).path(), wanted);
    QCOMPARE(value(report, "  problem"), QStringLiteral("it has no RetrievePath"));
    QCOMPARE(value(report, "graphics directory"), QStringLiteral("none: the look has no bitmaps"));
}

void tst_SupportReport::worksWithoutGui_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("application");
    QTest::newRow("no application object") << "none"
                                           << "no application object";
    QTest::newRow("no GUI") << "core" << PROBE;
}

void tst_SupportReport::worksWithoutGui()
{
    QFETCH(QString, way);
    QFETCH(QString, application);
    const QString report = Deployment(QString()).run({way, QStringLiteral("call")}).printed;
    QVERIFY2(value(report, "application").startsWith(application), qPrintable(report));
    QCOMPARE(values(report, "style in force"), QStringList());
}

HOUSE_TEST_MAIN(tst_SupportReport)
#include "tst_SupportReport.moc"
