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
    const auto rows = [](const char *tag, const QString &names) {
        for (const QString &name : names.split(' '))
            QTest::newRow(qPrintable(name)) << QString(tag);
    };
    rows("zh-chs", "zh_CN zh_SG.UTF-8 zh zh_Hans_HK");
    rows("zh-cht", "zh_TW zh_HK.Big5 zh_MO zh_Hant_CN zh-Hant-TW");
    rows("he", "iw iw_IL he_IL");
    rows("pt-br", "pt_BR.UTF-8 pt-BR");
    rows("pt", "pt_PT");
    rows("ja", "ja_JP.eucJP");
    rows("ko", "KO_kr");
    rows("el", "el_GR@euro");
    rows("de", "de_DE.UTF-8@euro");
    rows("fil", "fil_PH");
    rows("en", "C C.UTF-8 POSIX .UTF-8 /opt/locale/de_DE (empty)");
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
    const auto row = [](const char *name, const std::u16string &text, const char *utf8) {
        QTest::newRow(name) << text << QByteArray(utf8);
    };
    row("empty", u"", "");
    row("one to three bytes", u"A\u00E4\u3042", "A\xC3\xA4\xE3\x81\x82");
    row("limits", u"\u007F\u0080\u07FF\u0800\uFFFF", "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
    row("pair", u"\U0001F600\U0010FFFF", "\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF");
    row("high alone", u"\xD800x", "\xEF\xBF\xBDx");
    row("high at the end", u"x\xDBFF", "x\xEF\xBF\xBD");
    row("low alone", u"\xDC00x", "\xEF\xBF\xBDx");
    row("high before a pair", u"\xD800\xD83D\xDE00", "\xEF\xBF\xBD\xF0\x9F\x98\x80");
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
    const auto row = [](const char *name, const char *utf8, const std::u16string &text) {
        QTest::newRow(name) << QByteArray(utf8) << text;
    };
    row("valid", "A\xC3\xA4\xE3\x81\x82\xF0\x9F\x98\x80", u"A\u00E4\u3042\U0001F600");
    row("Latin 1", "f\xFCr", u"f\uFFFDr");
    row("cut short", "x\xE3\x81", u"x\uFFFD");
    row("cut short, then text", "\xF0\x9F\x98z", u"\uFFFDz");
    row("stray tail", "\x80x", u"\uFFFDx");
    row("overlong", "\xC0\xAF\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
    row("surrogate", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD");
    row("too large", "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD");
    row("no such byte", "\xFF", u"\uFFFD");
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
    const auto row = [](const char *name, const Variables &variables, const Files &files, const char *expected,
                        const char *step = "") {
        QTest::newRow(name) << variables << files << step << expected;
    };
    row("environment", {{"ZEL_LANGUAGE", "Zh-CHS"}}, both, "Zh-CHS");
    row("name of a locale", {{"ZEL_LANGUAGE", "zh_CN.UTF-8"}}, both, "zh-chs");
    row("environment, empty", {{"ZEL_LANGUAGE", ""}}, both, "X-User");
    row("user before system", locale, both, "X-User");
    row("system", locale, onlySystem, "sys");
    row("no value is no choice", locale, empty, "ja");
    row("LC_MESSAGES", {{"LC_MESSAGES", "ko_KR"}, {"LANG", "ja_JP"}}, {}, "ko");
    row("LC_ALL", {{"LC_ALL", "zh_TW"}, {"LC_MESSAGES", "ko"}, {"LANG", "ja"}}, {}, "zh-cht");
    row("locale that is set", locale, {}, "en", "locale:C.UTF-8");
    row("nothing", {{"LANG", ""}}, {}, "en");
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

void TestZelCUtil::otherPaths()
{
    const Home home({}, {{userIni, "[Log]\nLevel=off\n[Installation]\nHelpDir = /user/help\n"},
                         {systemIni, "[Installation]\nHelpDir=/system/help\nFontDir=/system/fonts\n"}});
    const QMap<QString, QString> expected = {{"HelpDir", "/user/help"},
                                             {"helpdir", "/user/help"},
                                             {"FontDir", "/system/fonts"},
                                             {"Level", ""}, // of another section
                                             {"Missing", ""}};
    QStringList steps;
    for (const QString &key : expected.keys())
        steps += "path:" + key;
    QCOMPARE(home.run(steps).values, expected);
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
    row("warning", {{"ZEL_LOG", "warning"}}, "", defaultLog, "45", "45");
    row("debug", {{"ZEL_LOG", "Debug"}}, "", defaultLog, "3456", "3456");
    row("trace", {{"ZEL_LOG", "TRACE"}}, "", defaultLog, "123456", "123456");
    row("file alone", {{"ZEL_LOG_FILE", "%/a/b/x.log"}}, "", "a/b/x.log", "3456", "3456");
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
    const auto file = [](const QString &name) {
        return Variables{{"ZEL_LOG", "trace"}, {"ZEL_LOG_FILE", name}};
    };
    const auto row = [](const char *name, const Variables &variables, const Files &files, const QString &path,
                        const char *reason) {
        QTest::newRow(name) << variables << files << path << reason;
    };
    const QString longName = "%/" + QString(300, 'n');
    row("directory", file("%"), {}, "%", "it is a directory");
    row("below a file", file("%/occupied/x.log"), {{"occupied", "x"}}, "%/occupied/x.log", "Not a directory");
    row("deep below a device", file("/dev/null/x/y.log"), {}, "/dev/null/x/y.log", "Not a directory");
    row("device", file("/dev/full"), {}, "/dev/full", "it is not a regular file");
    // Root may write into a folder without write permission, but nobody into this one.
    row("folder that takes no files", file("/proc/x.log"), {}, "/proc/x.log", "No such file or directory");
    row("name too long", file(longName), {}, longName, "File name too long");
    row("no home", {{"ZEL_LOG", "trace"}, {"XDG_STATE_HOME", ""}, {"HOME", ""}}, {}, "", "no home folder is known");
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
    const QString levels = "; use off, error, warning, info, debug or trace";
    const auto ini = [](const char *name, const QByteArray &text, const QString &warning, const char *language = "en") {
        QTest::newRow(name) << Variables{} << Files{{userIni, text}} << warning << language;
    };
    ini("line without a value", "[Installation]\nLanguage = ja\n\nwhat is this\n", notUnderstood.arg(4), "ja");
    ini("goes on after the fault", "???\n!!!\n[Installation]\nLanguage = ko\n", notUnderstood.arg(1), "ko");
    ini("no section", "; note\nLanguage = ja\n", notUnderstood.arg(2));
    ini("section not closed", "[Installation\nLanguage = ja\n", notUnderstood.arg(1));
    ini("no key", "[Installation]\n= ja\n", notUnderstood.arg(2));
    ini("binary", QByteArray("\xFF\xFE[\0I\0n\0", 8), notUnderstood.arg(1));
    ini("unknown level in the settings", "[Log]\nLevel = 3\n", "'3' is no log level (Level in section [Log])" + levels);
    QTest::newRow("unknown level") << Variables{{"ZEL_LOG", "loud"}} << Files{}
                                   << "'loud' is no log level (ZEL_LOG)" + levels << "en";
    QTest::newRow("folder instead of file")
        << Variables{} << Files{{userIni + "/x", ""}}
        << "%/config/zelcutil03.ini: cannot be read (it is not a file); make it a readable text file, or remove it"
        << "en";
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
