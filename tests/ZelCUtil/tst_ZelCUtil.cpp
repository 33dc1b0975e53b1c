// The pure functions are tested in this process, everything that depends on environment and files through the probe:
// the library reads its configuration once per process.

#include "Language.h"
#include "Utf.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using Variables = QMap<QString, QString>;
using Files = QMap<QString, QByteArray>;

Q_DECLARE_METATYPE(Variables)
Q_DECLARE_METATYPE(Files)
Q_DECLARE_METATYPE(std::u16string)

namespace {

const QString userIni = QStringLiteral("config/zelcutil03.ini");
const QString systemIni = QStringLiteral("etc/zelcutil03.ini");
const QString otherSystemIni = QStringLiteral("etc2/zelcutil03.ini");
const QString defaultLog = QStringLiteral("state/zelcutil03/zelcutil03.log");

struct Answer
{
    QMap<QString, QString> values;
    QString errors;
};

// A home of its own for one run of the probe. "%" in variables and files stands for its folder.
class Home
{
public:
    explicit Home(const Variables &variables = {}, const Files &files = {})
    {
        for (auto file = files.begin(); file != files.end(); ++file)
            write(file.key(), QByteArray(file.value()).replace('%', m_folder.path().toUtf8()));
        const Variables own = {{"HOME", "%/home"},
                               {"XDG_CONFIG_HOME", "%/config"},
                               {"XDG_CONFIG_DIRS", "%/etc:%/etc2"},
                               {"XDG_STATE_HOME", "%/state"},
                               {"LANG", "C"}};
        takeOver(own);
        takeOver(variables);
    }

    QString path(const QString &relative) const { return m_folder.filePath(relative); }
    QString expanded(QString text) const { return text.replace('%', m_folder.path()); }

    void write(const QString &relative, const QByteArray &content) const
    {
        QVERIFY(QDir(m_folder.path()).mkpath(QFileInfo(relative).path()));
        QFile file(path(relative));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    QStringList lines(const QString &relative) const
    {
        QFile file(path(relative));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
                                              : QStringList();
    }

    QStringList allFiles() const
    {
        QStringList found;
        QDirIterator files(m_folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext())
            found += QDir(m_folder.path()).relativeFilePath(files.next());
        found.sort();
        return found;
    }

    Answer run(const QStringList &steps) const { return run(QStringLiteral(PROBE_FILE), steps); }

    Answer run(const QString &program, const QStringList &arguments) const
    {
        QProcess probe;
        probe.setProcessEnvironment(m_environment);
        probe.setWorkingDirectory(m_folder.path());
        probe.start(program, arguments);
        Answer answer;
        if (!probe.waitForFinished() || probe.exitStatus() != QProcess::NormalExit || probe.exitCode() != 0) {
            QTest::qFail(probe.readAllStandardError() + probe.errorString().toUtf8(), __FILE__, __LINE__);
            return answer;
        }
        answer.errors = QString::fromUtf8(probe.readAllStandardError());
        const QString output = QString::fromUtf8(probe.readAllStandardOutput());
        for (const QString &line : output.split('\n', Qt::SkipEmptyParts))
            answer.values[line.section('=', 0, 0)] = line.section('=', 1);
        return answer;
    }

private:
    void takeOver(const Variables &variables)
    {
        for (auto variable = variables.begin(); variable != variables.end(); ++variable)
            m_environment.insert(variable.key(), expanded(variable.value()));
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment; // starts empty: nothing of the developer's desktop reaches the probe
};

// The numbers of the "level n" records among lines, in their order.
QString levelsIn(const QStringList &lines)
{
    QString levels;
    static const QRegularExpression record(QStringLiteral(R"(probe \.\\Probe\(7\): level (\d)$)"));
    for (const QString &line : lines)
        levels += record.match(line).captured(1);
    return levels;
}

QStringList linesOf(const QString &text)
{
    return text.split('\n', Qt::SkipEmptyParts);
}

void columns(std::initializer_list<const char *> texts)
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<Files>("files");
    for (const char *text : texts)
        QTest::addColumn<QString>(text);
}

} // namespace

class TestZelCUtil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void localeMapping_data();
    void localeMapping();
    void utf16ToUtf8_data();
    void utf16ToUtf8();
    void utf8ToUtf16_data();
    void utf8ToUtf16();
    void language_data();
    void language();
    void graphicsDirectory_data();
    void graphicsDirectory();
    void otherPaths_data();
    void otherPaths();
    void artworkBesideLibrary_data();
    void artworkBesideLibrary();
    void logDestinations_data();
    void logDestinations();
    void recordLayout();
    void rotation();
    void unwritableLog_data();
    void unwritableLog();
    void diskFullWhileLogging();
    void standardErrorIsClosed();
    void configurationWarnings_data();
    void configurationWarnings();
    void nullPointers();
    void threads();
    void beforeMainAndDuringExit();
    void recordsSurviveACrash();
    void errorNumberIsKept();
    void operationsAreFoundByName();
};

void TestZelCUtil::localeMapping_data()
{
    QTest::addColumn<QString>("tag");
    const char *const rows[][2] = {{"zh_CN", "zh-chs"},
                                   {"zh_SG.UTF-8", "zh-chs"},
                                   {"zh", "zh-chs"},
                                   {"zh_Hans_HK", "zh-chs"},
                                   {"zh_TW", "zh-cht"},
                                   {"zh_HK.Big5", "zh-cht"},
                                   {"zh_MO", "zh-cht"},
                                   {"zh_Hant_CN", "zh-cht"},
                                   {"zh-Hant-TW", "zh-cht"},
                                   {"iw", "he"},
                                   {"iw_IL", "he"},
                                   {"he_IL", "he"},
                                   {"pt_BR.UTF-8", "pt-br"},
                                   {"pt-BR", "pt-br"},
                                   {"pt_PT", "pt"},
                                   {"ja_JP.eucJP", "ja"},
                                   {"KO_kr", "ko"},
                                   {"ru_RU.KOI8-R", "ru"},
                                   {"el_GR@euro", "el"},
                                   {"tr_TR", "tr"},
                                   {"de_DE.UTF-8@euro", "de"},
                                   {"hu", "hu"},
                                   {"fil_PH", "fil"},
                                   {"C", "en"},
                                   {"C.UTF-8", "en"},
                                   {"POSIX", "en"},
                                   {"", "en"},
                                   {".UTF-8", "en"},
                                   {"/opt/locale/de_DE", "en"}};
    for (const auto &row : rows)
        QTest::newRow(*row[0] != '\0' ? row[0] : "(empty)") << QString(row[1]);
}

void TestZelCUtil::localeMapping()
{
    QFETCH(QString, tag);
    const std::string name = QTest::currentDataTag();
    QCOMPARE(QString::fromStdString(zelcutil::languageTag(name == "(empty)" ? "" : name)), tag);
}

void TestZelCUtil::utf16ToUtf8_data()
{
    QTest::addColumn<std::u16string>("text");
    QTest::addColumn<QByteArray>("utf8");
    QTest::newRow("empty") << std::u16string() << QByteArray();
    QTest::newRow("one to three bytes") << std::u16string(u"A\u00E4\u3042") << QByteArray("A\xC3\xA4\xE3\x81\x82");
    QTest::newRow("limits") << std::u16string(u"\u007F\u0080\u07FF\u0800\uFFFF")
                            << QByteArray("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
    QTest::newRow("pair") << std::u16string(u"\U0001F600\U0010FFFF") << QByteArray("\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF");
    QTest::newRow("high alone") << std::u16string(u"\xD800x") << QByteArray("\xEF\xBF\xBDx");
    QTest::newRow("high at the end") << std::u16string(u"x\xDBFF") << QByteArray("x\xEF\xBF\xBD");
    QTest::newRow("low alone") << std::u16string(u"\xDC00x") << QByteArray("\xEF\xBF\xBDx");
    QTest::newRow("high before a pair") << std::u16string(u"\xD800\xD83D\xDE00")
                                        << QByteArray("\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

void TestZelCUtil::utf16ToUtf8()
{
    QFETCH(std::u16string, text);
    QFETCH(QByteArray, utf8);
    QCOMPARE(QByteArray::fromStdString(zelcutil::toUtf8(text)), utf8);
}

void TestZelCUtil::utf8ToUtf16_data()
{
    QTest::addColumn<QByteArray>("utf8");
    QTest::addColumn<std::u16string>("text");
    QTest::newRow("valid") << QByteArray("A\xC3\xA4\xE3\x81\x82\xF0\x9F\x98\x80")
                           << std::u16string(u"A\u00E4\u3042\U0001F600");
    QTest::newRow("Latin 1") << QByteArray("f\xFCr") << std::u16string(u"f\uFFFDr");
    QTest::newRow("cut short") << QByteArray("x\xE3\x81") << std::u16string(u"x\uFFFD");
    QTest::newRow("cut short, then text") << QByteArray("\xF0\x9F\x98z") << std::u16string(u"\uFFFDz");
    QTest::newRow("stray tail") << QByteArray("\x80x") << std::u16string(u"\uFFFDx");
    QTest::newRow("overlong") << QByteArray("\xC0\xAF\xE0\x80\xAF")
                              << std::u16string(u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
    QTest::newRow("surrogate") << QByteArray("\xED\xA0\x80") << std::u16string(u"\uFFFD\uFFFD\uFFFD");
    QTest::newRow("too large") << QByteArray("\xF4\x90\x80\x80") << std::u16string(u"\uFFFD\uFFFD\uFFFD\uFFFD");
    QTest::newRow("no such byte") << QByteArray("\xFF") << std::u16string(u"\uFFFD");
}

void TestZelCUtil::utf8ToUtf16()
{
    QFETCH(QByteArray, utf8);
    QFETCH(std::u16string, text);
    QCOMPARE(QString::fromStdU16String(zelcutil::toUtf16(utf8.toStdString())), QString::fromStdU16String(text));
}

void TestZelCUtil::language_data()
{
    columns({"step", "expected"});
    const Files both = {{userIni, "[Installation]\nLanguage = X-User\n"},
                        {systemIni, "[Installation]\nLanguage=sys\n"}};
    const Files onlySystem = {{systemIni, "[installation]\r\nlanguage = sys ; a comment\r\n"}};
    const Files empty = {{userIni, "[Installation]\nLanguage =\n"}, {systemIni, "[Installation]\nLanguage=sys\n"}};
    const Variables locale = {{"LANG", "ja_JP.UTF-8"}};
    QTest::newRow("environment") << Variables{{"ZEL_LANGUAGE", "Zh-CHS"}} << both << ""
                                 << "Zh-CHS";
    QTest::newRow("name of a locale") << Variables{{"ZEL_LANGUAGE", "zh_CN.UTF-8"}} << both << ""
                                      << "zh-chs";
    QTest::newRow("environment, empty") << Variables{{"ZEL_LANGUAGE", ""}} << both << ""
                                        << "X-User";
    QTest::newRow("user before system") << locale << both << ""
                                        << "X-User";
    QTest::newRow("system") << locale << onlySystem << ""
                            << "sys";
    QTest::newRow("no value is no choice") << locale << empty << ""
                                           << "ja";
    QTest::newRow("LANG") << locale << Files{} << ""
                          << "ja";
    QTest::newRow("LC_MESSAGES") << Variables{{"LC_MESSAGES", "ko_KR"}, {"LANG", "ja_JP"}} << Files{} << ""
                                 << "ko";
    QTest::newRow("LC_ALL") << Variables{{"LC_ALL", "zh_TW"}, {"LC_MESSAGES", "ko"}, {"LANG", "ja"}} << Files{} << ""
                            << "zh-cht";
    QTest::newRow("locale that is set") << locale << Files{} << "locale:C.UTF-8"
                                        << "en";
    QTest::newRow("nothing") << Variables{{"LANG", ""}} << Files{} << ""
                             << "en";
}

void TestZelCUtil::language()
{
    QFETCH(Variables, variables);
    QFETCH(Files, files);
    QFETCH(QString, step);
    QFETCH(QString, expected);
    const QStringList before = step.isEmpty() ? QStringList() : QStringList(step);
    QCOMPARE(Home(variables, files).run(before + QStringList("language")).values["language"], expected);
}

void TestZelCUtil::graphicsDirectory_data()
{
    columns({"expected"});
    const Files user = {{userIni, "[Installation]\nCommonGraphicsDir=/user\n"},
                        {systemIni, "[Installation]\nCommonGraphicsDir=/system\n"}};
    const Files second = {{systemIni, "[Installation]\nLanguage=x\n"},
                          {otherSystemIni, "[Installation]\nCommonGraphicsDir=/second\n"}};
    const Files empty = {{userIni, "[Installation]\nCommonGraphicsDir=\n"},
                         {systemIni, "[Installation]\nCommonGraphicsDir=/system\n"}};
    const Files atHome = {{userIni, "[Installation]\nCommonGraphicsDir = ~/art work\n"}};
    const Files defaultPlace = {{"home/.config/zelcutil03.ini", "[Installation]\nCommonGraphicsDir=/default\n"}};
    const QByteArray longFolder = "/" + QByteArray(300, 'd');
    const Files longLine = {{userIni, "[Installation]\nCommonGraphicsDir = " + longFolder + " ; long\n"}};
    const Files japanese = {
        {userIni, "\xEF\xBB\xBF[Installation]\n  Language = x\n  CommonGraphicsDir=/\xE7\xB5\xB5\n"}};
    QTest::newRow("environment") << Variables{{"ZEL_GRAPHICS_DIR", "/env"}} << user << "/env";
    QTest::newRow("environment at home") << Variables{{"ZEL_GRAPHICS_DIR", "~/art"}} << user << "%/home/art";
    QTest::newRow("environment, empty") << Variables{{"ZEL_GRAPHICS_DIR", ""}} << user << "/user";
    QTest::newRow("system") << Variables{{"XDG_CONFIG_HOME", "%/none"}} << user << "/system";
    QTest::newRow("second system folder") << Variables{} << second << "/second";
    QTest::newRow("present but empty") << Variables{} << empty << "";
    QTest::newRow("setting at home") << Variables{} << atHome << "%/home/art work";
    QTest::newRow("default place") << Variables{{"XDG_CONFIG_HOME", ""}} << defaultPlace << "/default";
    QTest::newRow("relative folder is ignored") << Variables{{"XDG_CONFIG_HOME", "config"}} << user << "/system";
    QTest::newRow("long line") << Variables{} << longLine << QString::fromLatin1(longFolder);
    QTest::newRow("byte order mark, indented") << Variables{} << japanese << "/\\u7D75";
}

void TestZelCUtil::graphicsDirectory()
{
    QFETCH(Variables, variables);
    QFETCH(Files, files);
    QFETCH(QString, expected);
    const Home home(variables, files);
    const Answer answer = home.run({"graphicsdir"});
    QCOMPARE(answer.values["graphicsdir"], home.expanded(expected));
    QCOMPARE(answer.errors, QString());
}

void TestZelCUtil::otherPaths_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("HelpDir") << "/user/help";
    QTest::newRow("helpdir") << "/user/help";
    QTest::newRow("FontDir") << "/system/fonts";
    QTest::newRow("Level") << ""; // of another section
    QTest::newRow("Missing") << "";
}

void TestZelCUtil::otherPaths()
{
    QFETCH(QString, expected);
    const Home home({}, {{userIni, "[Log]\nLevel=off\n[Installation]\nHelpDir = /user/help\n"},
                         {systemIni, "[Installation]\nHelpDir=/system/help\nFontDir=/system/fonts\n"}});
    const QString key = QTest::currentDataTag();
    const Answer answer = home.run({"path:" + key});
    QVERIFY(answer.values.contains(key));
    QCOMPARE(answer.values[key], expected);
}

void TestZelCUtil::artworkBesideLibrary_data()
{
    QTest::addColumn<QString>("loadedFrom");
    QTest::addColumn<bool>("isInstalled");
    QTest::newRow("installed") << "moved/lib/deep" << true;
    QTest::newRow("not installed") << "moved/lib/deep" << false;
    QTest::newRow("installed, loaded through a link") << "link" << true; // as /lib is one to /usr/lib
}

void TestZelCUtil::artworkBesideLibrary()
{
    QFETCH(QString, loadedFrom);
    QFETCH(bool, isInstalled);
    const Home home({{"LD_LIBRARY_PATH", "%/" + loadedFrom}});
    const QString copy = home.path("moved/lib/deep/") + QFileInfo(LIBRARY_FILE).fileName();
    const QString artwork = QDir::cleanPath(QFileInfo(copy).path() + "/" ARTWORK_FROM_LIBRARY);
    QVERIFY(QDir().mkpath(QFileInfo(copy).path()));
    QVERIFY(QFile::link(home.path("moved/lib/deep"), home.path("link")));
    QVERIFY(QFile::copy(LIBRARY_FILE, copy));
    QVERIFY(!isInstalled || QDir().mkpath(artwork));
    QCOMPARE(home.run({"graphicsdir"}).values["graphicsdir"], isInstalled ? artwork : QString());
}

void TestZelCUtil::logDestinations_data()
{
    columns({"file", "inFile", "onConsole", "wanted"});
    const auto row = [](const char *name, const Variables &variables, const QByteArray &settings, const QString &file,
                        const char *inFile, const char *wanted) {
        const Files files = settings.isEmpty() ? Files{} : Files{{userIni, "[Log]\n" + settings}};
        QTest::newRow(name) << variables << files << file << inFile << "45" << wanted;
    };
    row("default is quiet", {}, "", "", "", "45");
    row("empty variables", {{"ZEL_LOG", ""}, {"ZEL_LOG_FILE", ""}}, "", "", "", "45");
    row("empty settings", {}, "Level =\nFile =\n", "", "", "45");
    row("error", {{"ZEL_LOG", "error"}}, "", defaultLog, "4", "45");
    row("warning", {{"ZEL_LOG", "warning"}}, "", defaultLog, "45", "45");
    row("info", {{"ZEL_LOG", "info"}}, "", defaultLog, "45", "45");
    row("debug", {{"ZEL_LOG", "Debug"}}, "", defaultLog, "3456", "3456");
    row("trace", {{"ZEL_LOG", "TRACE"}}, "", defaultLog, "123456", "123456");
    row("file alone", {{"ZEL_LOG_FILE", "%/a/b/x.log"}}, "", "a/b/x.log", "3456", "3456");
    row("relative file", {{"ZEL_LOG_FILE", "x.log"}}, "", "x.log", "3456", "3456");
    row("setting Level", {}, "Level = trace\n", defaultLog, "123456", "123456");
    row("setting File", {}, "File = ~/y.log\n", "home/y.log", "3456", "3456");
    row("environment before settings", {{"ZEL_LOG", "warning"}, {"ZEL_LOG_FILE", "~/z.log"}},
        "Level=trace\nFile=%/y.log\n", "home/z.log", "45", "45");
    row("no state folder", {{"ZEL_LOG", "debug"}, {"XDG_STATE_HOME", ""}}, "",
        "home/.local/state/zelcutil03/zelcutil03.log", "3456", "3456");
    QTest::newRow("off") << Variables{{"ZEL_LOG", "off"}, {"ZEL_LOG_FILE", "%/x.log"}} << Files{} << ""
                         << ""
                         << ""
                         << "";
}

void TestZelCUtil::logDestinations()
{
    QFETCH(Variables, variables);
    QFETCH(Files, files);
    QFETCH(QString, file);
    QFETCH(QString, inFile);
    QFETCH(QString, onConsole);
    QFETCH(QString, wanted);
    const Home home(variables, files);
    const Answer answer = home.run({"log", "wanted"});
    QStringList expectedFiles = files.keys();
    if (!file.isEmpty())
        expectedFiles += file;
    expectedFiles.sort();
    QCOMPARE(home.allFiles(), expectedFiles);
    QCOMPARE(levelsIn(home.lines(file)), inFile);
    QCOMPARE(home.lines(file).size(), int(inFile.size()));
    QCOMPARE(levelsIn(linesOf(answer.errors)), onConsole);
    QCOMPARE(linesOf(answer.errors).size(), int(onConsole.size()));
    QCOMPARE(answer.values["wanted"], wanted);
}

void TestZelCUtil::recordLayout()
{
    const Home home({{"ZEL_LOG", "trace"}});
    const Answer answer = home.run({"wanted", "controls"});
    QCOMPARE(answer.values["wanted"], QStringLiteral("123456")); // everything, until the log has configured itself
    const QStringList lines = home.lines(defaultLog);
    QCOMPARE(lines.size(), 1);
    const QRegularExpression layout(QStringLiteral(R"(^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} \[\d+\] error   4 )"
                                                   R"(probe \.\\Probe\(7\): one two  three four five )"
                                                   "\u3042 \uFFFD end$"));
    QVERIFY2(layout.match(lines[0]).hasMatch(), qPrintable(lines[0]));
    QCOMPARE(linesOf(answer.errors), lines);
}

void TestZelCUtil::rotation()
{
    const Home home({{"ZEL_LOG", "debug"}});
    home.run({"megabytes:22"});
    const QDir folder(QFileInfo(home.path(defaultLog)).path());
    const QStringList expected = {"zelcutil03.1.log", "zelcutil03.2.log", "zelcutil03.log"};
    QCOMPARE(folder.entryList(QDir::Files, QDir::Name), expected);
    for (const QFileInfo &file : folder.entryInfoList(QDir::Files))
        QVERIFY2(file.size() <= qint64(5) * 1024 * 1024, qPrintable(file.fileName()));
}

void TestZelCUtil::unwritableLog_data()
{
    columns({"path", "reason"});
    const auto file = [](const char *name) {
        return Variables{{"ZEL_LOG", "trace"}, {"ZEL_LOG_FILE", name}};
    };
    const Files occupied = {{"occupied", "x"}};
    QTest::newRow("directory") << file("%") << Files{} << "%"
                               << "it is a directory";
    QTest::newRow("below a file") << file("%/occupied/x.log") << occupied << "%/occupied/x.log"
                                  << "Not a directory";
    QTest::newRow("deep below a device") << file("/dev/null/x/y.log") << Files{} << "/dev/null/x/y.log"
                                         << "Not a directory";
    QTest::newRow("device") << file("/dev/full") << Files{} << "/dev/full"
                            << "it is not a regular file";
    // Root may write into a folder without write permission, but nobody into this one.
    QTest::newRow("folder that takes no files") << file("/proc/x.log") << Files{} << "/proc/x.log"
                                                << "No such file or directory";
    const QString longName = "/" + QString(300, 'n');
    QTest::newRow("name too long") << Variables{{"ZEL_LOG_FILE", "%" + longName}} << Files{} << "%" + longName
                                   << "File name too long";
    QTest::newRow("no home") << Variables{{"ZEL_LOG", "trace"}, {"XDG_STATE_HOME", ""}, {"HOME", ""}} << Files{} << ""
                             << "no home folder is known";
}

void TestZelCUtil::unwritableLog()
{
    QFETCH(Variables, variables);
    QFETCH(Files, files);
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const Home home(variables, files);
    const Answer answer = home.run({"log", "wanted"});
    const QStringList lines = linesOf(answer.errors);
    QCOMPARE(lines.size(), 3);
    const QString name = path.isEmpty() ? QString() : home.expanded(path) + ' ';
    const QString expected = "the log " + name + "cannot be written: " + reason +
                             "; set ZEL_LOG_FILE, or File in section [Log], to a file in a writable folder";
    QVERIFY2(lines[0].endsWith(expected), qPrintable(lines[0]));
    QCOMPARE(levelsIn(lines), QStringLiteral("45"));
    QCOMPARE(answer.values["wanted"], QStringLiteral("45"));
    QCOMPARE(home.allFiles(), files.keys());
}

void TestZelCUtil::diskFullWhileLogging()
{
    const Home home({{"ZEL_LOG", "trace"}});
    // A limit of the file size stands in for the disk.
    const QString script = QStringLiteral("ulimit -f 1; exec '%1' megabytes:1 log wanted");
    const Answer answer = home.run("/bin/sh", {"-c", script.arg(PROBE_FILE)});
    const QStringList lines = linesOf(answer.errors);
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines[0].contains("the log is given up"), qPrintable(lines[0]));
    QVERIFY2(lines[0].contains(home.path(defaultLog)), qPrintable(lines[0]));
    QVERIFY2(lines[0].contains("File too large"), qPrintable(lines[0]));
    QCOMPARE(levelsIn(lines), QStringLiteral("45"));
    QCOMPARE(answer.values["wanted"], QStringLiteral("45"));
}

void TestZelCUtil::standardErrorIsClosed()
{
    const Home home;
    const Answer answer = home.run({"deafen", "log", "wanted"}); // comes back, and is not ended by a signal
    QCOMPARE(answer.values["wanted"], QStringLiteral("45"));
}

void TestZelCUtil::configurationWarnings_data()
{
    columns({"warning", "language"});
    const QString notUnderstood =
        "%/config/zelcutil03.ini:%1: not understood; write Key = Value, or start a comment with ;";
    const auto ini = [](const QByteArray &text) {
        return Files{{userIni, text}};
    };
    const QString levels = "; use off, error, warning, info, debug or trace";
    QTest::newRow("line without a value")
        << Variables{} << ini("[Installation]\nLanguage = ja\n\nwhat is this\n") << notUnderstood.arg(4) << "ja";
    QTest::newRow("goes on after the fault")
        << Variables{} << ini("???\n!!!\n[Installation]\nLanguage = ko\n") << notUnderstood.arg(1) << "ko";
    QTest::newRow("no section") << Variables{} << ini("; note\nLanguage = ja\n") << notUnderstood.arg(2) << "en";
    QTest::newRow("section not closed") << Variables{} << ini("[Installation\nLanguage = ja\n") << notUnderstood.arg(1)
                                        << "en";
    QTest::newRow("no key") << Variables{} << ini("[Installation]\n= ja\n") << notUnderstood.arg(2) << "en";
    QTest::newRow("binary") << Variables{} << ini(QByteArray("\xFF\xFE[\0I\0n\0", 8)) << notUnderstood.arg(1) << "en";
    QTest::newRow("folder instead of file") << Variables{} << Files{{userIni + "/x", ""}}
                                            << "%/config/zelcutil03.ini: cannot be read (it is not a file); make it a "
                                               "readable text file, or remove it"
                                            << "en";
    QTest::newRow("unknown level") << Variables{{"ZEL_LOG", "loud"}} << Files{}
                                   << "'loud' is no log level (ZEL_LOG)" + levels << "en";
    QTest::newRow("unknown level in the settings")
        << Variables{} << ini("[Log]\nLevel = 3\n") << "'3' is no log level (Level in section [Log])" + levels << "en";
}

void TestZelCUtil::configurationWarnings()
{
    QFETCH(Variables, variables);
    QFETCH(Files, files);
    QFETCH(QString, warning);
    QFETCH(QString, language);
    const Home home(variables, files);
    const Answer answer = home.run({"language", "log", "wanted"});
    const QStringList lines = linesOf(answer.errors);
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines[0].contains(" warning ZelCUtil03: "), qPrintable(lines[0]));
    QVERIFY2(lines[0].contains(home.expanded(warning)), qPrintable(lines[0]));
    QCOMPARE(levelsIn(lines), QStringLiteral("45"));
    QCOMPARE(answer.values["wanted"], QStringLiteral("45"));
    QCOMPARE(answer.values["language"], language);
    QCOMPARE(home.allFiles(), files.keys());
}

void TestZelCUtil::nullPointers()
{
    const Answer answer = Home().run({"nulls"});
    QCOMPARE(answer.values.value("nullkey", "not answered"), QString());
    QCOMPARE(linesOf(answer.errors).size(), 1);
    QVERIFY2(answer.errors.endsWith(" error   4 - -(0): -\n"), qPrintable(answer.errors));
}

void TestZelCUtil::threads()
{
    const Home home({{"ZEL_LOG", "debug"}});
    const QStringList onConsole = linesOf(home.run({"threads"}).errors);
    const QRegularExpression whole(
        QStringLiteral(R"(^\d{4}-.{18} \[\d+\] warning 5 probe \.\\Probe\(7\): ([a-e])\1{99}$)"));
    for (const QStringList &lines : {home.lines(defaultLog), onConsole}) {
        QCOMPARE(lines.size(), 5 * 200);
        QCOMPARE(lines.filter(whole).size(), lines.size());
    }
}

void TestZelCUtil::beforeMainAndDuringExit()
{
    const Home home({{"PROBE_STATICS", "1"}, {"ZEL_LOG", "trace"}});
    home.run({"log"});
    const QStringList lines = home.lines(defaultLog);
    QCOMPARE(lines.size(), 8);
    QVERIFY2(lines.first().endsWith("before main"), qPrintable(lines.first()));
    QVERIFY2(lines.last().endsWith("during exit"), qPrintable(lines.last()));
}

void TestZelCUtil::recordsSurviveACrash()
{
    const Home home({{"ZEL_LOG", "trace"}});
    home.run({"log", "crash"});
    QCOMPARE(levelsIn(home.lines(defaultLog)), QStringLiteral("123456"));
}

void TestZelCUtil::errorNumberIsKept()
{
    const Home home({{"ZEL_LOG", "trace"}, {"ZEL_LOG_FILE", "/dev/null/x"}});
    QCOMPARE(home.run({"errno"}).values["errno"], QStringLiteral("4711"));
}

void TestZelCUtil::operationsAreFoundByName()
{
    QLibrary library(LIBRARY_FILE);
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    const auto getLanguage = reinterpret_cast<const char16_t *(*)()>(library.resolve("GetLanguage"));
    const auto retrievePath =
        reinterpret_cast<void (*)(const char16_t *, const char16_t **, int)>(library.resolve("RetrievePath"));
    if (getLanguage == nullptr || retrievePath == nullptr)
        QFAIL("the library lacks an entry point");
    const char16_t *language = getLanguage();
    const char16_t *path = nullptr;
    retrievePath(u"NoSuchSetting", &path, 0);
    library.unload();
    QVERIFY(*language != 0); // both texts are promised to outlive the library's unloading
    QCOMPARE(*path, char16_t(0));
}

QTEST_GUILESS_MAIN(TestZelCUtil)
#include "tst_ZelCUtil.moc"
