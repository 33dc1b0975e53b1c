#include "include/SupportReport.h"

#include "Platform/Platform.h"
#include "UiGraphics.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QProcessEnvironment>
#include <QProxyStyle>
#include <QScreen>
#include <QSysInfo>

#include <algorithm>
#include <cstdio>

namespace {

constexpr char switchName[] = "ZEL_SUPPORT";
constexpr int keyWidth = 20;

QString none()
{
    return QStringLiteral("none");
}

/** Lines of "key   value"; several values of one key stand below each other. */
class Lines
{
public:
    void add(const QString &key, const QString &value)
    {
        m_text += key.leftJustified(keyWidth) + value + QLatin1Char('\n');
    }

    void add(const QString &key, const QStringList &values)
    {
        add(key, values.isEmpty() ? none() : values.first());
        for (const QString &value : values.mid(1))
            add(QString(), value);
    }

    QString text() const { return m_text; }

private:
    QString m_text;
};

QStringList sorted(const QSet<QString> &names)
{
    QStringList list(names.begin(), names.end());
    list.sort();
    return list;
}

QString orNone(const QString &text)
{
    return text.isEmpty() ? none() : text;
}

QString describe(const QStyle *style)
{
    const QString className = QString::fromLatin1(style->metaObject()->className());
    const QString key = style->objectName();
    return key.isEmpty() ? className : QStringLiteral("%1 (%2)").arg(className, key);
}

/** The style in force, and what each proxy on the way down stands on. */
QStringList styleChain()
{
    QStringList chain;
    QStyle *style = QApplication::style();
    while (style != nullptr) {
        chain.append(describe(style));
        auto *proxy = qobject_cast<QProxyStyle *>(style);
        style = proxy != nullptr ? proxy->baseStyle() : nullptr;
    }
    return chain;
}

void addVersions(Lines &lines)
{
    lines.add(QStringLiteral("library"), QStringLiteral(ZEL_LIBRARY_VERSION));
    lines.add(QStringLiteral("  file"),
              orNone(Platform::fileOfAddress(reinterpret_cast<const void *>(&zel::supportReport))));
    lines.add(QStringLiteral("Qt, built with"), QStringLiteral(QT_VERSION_STR));
    lines.add(QStringLiteral("Qt, running"), QString::fromLatin1(qVersion()));
    lines.add(QStringLiteral("system"),
              QSysInfo::prettyProductName() + QStringLiteral(", ") + QSysInfo::currentCpuArchitecture());
}

void addScreen(Lines &lines)
{
    QString window = QGuiApplication::platformName();
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        window += QStringLiteral(", %1 x %2, device pixel ratio %3")
                      .arg(screen->size().width())
                      .arg(screen->size().height())
                      .arg(screen->devicePixelRatio());
    lines.add(QStringLiteral("window system"), window);
}

void addStyle(Lines &lines)
{
    const QStringList chain = styleChain();
    lines.add(QStringLiteral("style in force"), chain.value(0));
    lines.add(QStringLiteral("  base style"), chain.mid(1));
    lines.add(QStringLiteral("  style sheet"),
              qApp->styleSheet().isEmpty() ? none() : QStringLiteral("%1 characters").arg(qApp->styleSheet().size()));
}

void addApplication(Lines &lines)
{
    if (QCoreApplication::instance() == nullptr)
        return lines.add(QStringLiteral("application"), QStringLiteral("no application object"));
    lines.add(QStringLiteral("application"), QStringLiteral("%1, process %2")
                                                 .arg(QCoreApplication::applicationFilePath())
                                                 .arg(QCoreApplication::applicationPid()));
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr)
        return;
    addScreen(lines);
    addStyle(lines);
}

// The variables that choose the look, as they are set; most are not.
void addEnvironment(Lines &lines)
{
    QStringList set;
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList names = environment.keys();
    for (const QString &name : names)
        if (name.startsWith(QLatin1String("ZEL_")) || name == QLatin1String("QT_STYLE_OVERRIDE") ||
            name == QLatin1String("QT_PLUGIN_PATH") || name == QLatin1String("QT_SCALE_FACTOR"))
            set.append(name + QLatin1Char('=') + environment.value(name));
    set.sort();
    lines.add(QStringLiteral("environment"), set);
}

void addUtilityLibrary(Lines &lines, const LookUse &use)
{
    const bool isMissing = use.utilityLibrary.isEmpty() && !use.utilityProblem.isEmpty();
    lines.add(QStringLiteral("utility library"), isMissing ? QStringLiteral("not found") : orNone(use.utilityLibrary));
    if (!use.utilityProblem.isEmpty())
        lines.add(QStringLiteral("  problem"), use.utilityProblem);
}

QString describe(const ReadXml &xml)
{
    if (!xml.problem.isEmpty())
        return QStringLiteral("%1: no effect: %2").arg(xml.path, xml.problem);
    const QString text = QStringLiteral("%1: %2 colours, %3 fonts").arg(xml.path).arg(xml.colors).arg(xml.families);
    if (!xml.notAKey.isEmpty())
        return text + QStringLiteral("; no keys: ") + xml.notAKey.join(QStringLiteral(", "));
    return text;
}

void addXml(Lines &lines, const LookUse &use)
{
    QStringList read;
    QStringList absent = use.xmlSought;
    for (const ReadXml &xml : use.xmlRead) {
        read.append(describe(xml));
        absent.removeAll(xml.path);
    }
    lines.add(QStringLiteral("XML files read"), read);
    lines.add(QStringLiteral("  not there"), absent);
}

QString describe(const HeldFont &held)
{
    const QString wanted = held.font.family();
    const QString found = QFontInfo(held.font).family();
    if (wanted.compare(found, Qt::CaseInsensitive) == 0)
        return QStringLiteral("%1: \"%2\"").arg(held.purpose, found);
    return QStringLiteral("%1: \"%2\" asked for, \"%3\" in its place").arg(held.purpose, wanted, found);
}

void addFonts(Lines &lines, const LookUse &use)
{
    // The font database ends a process that has no GUI.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        return;
    QStringList fonts;
    std::transform(use.fonts.begin(), use.fonts.end(), std::back_inserter(fonts),
                   [](const HeldFont &held) { return describe(held); });
    lines.add(QStringLiteral("fonts"), fonts);
    const bool isNoFont = !use.privateFont.isEmpty() && !use.isPrivateFontRegistered;
    lines.add(QStringLiteral("  private font"),
              orNone(use.privateFont) + (isNoFont ? QStringLiteral(", which is no font") : QString()));
}

QString describeDirectory(const QString &path)
{
    if (path.isEmpty())
        return QStringLiteral("none: the look has no bitmaps");
    return QDir(path).exists() ? path : path + QStringLiteral(", which is not there");
}

void addLook(Lines &lines, const LookUse &use)
{
    addUtilityLibrary(lines, use);
    if (!use.isStarted)
        return lines.add(QStringLiteral("look registry"),
                         use.utilityProblem.isEmpty() ? QStringLiteral("not started: nobody has asked for a look yet")
                                                      : QStringLiteral("not started: colours are black"));
    lines.add(QStringLiteral("language"), orNone(use.language));
    lines.add(QStringLiteral("graphics directory"), describeDirectory(use.graphicsDir));
    addXml(lines, use);
    addFonts(lines, use);
    lines.add(QStringLiteral("bitmaps not found"), sorted(use.missingBitmaps));
    lines.add(QStringLiteral("  not readable"), sorted(use.unreadableBitmaps));
}

void printToError(const QString &report)
{
    std::fputs(report.toLocal8Bit().constData(), stderr);
    std::fflush(stderr);
}

void deliverReport()
{
    const QString target = qEnvironmentVariable(switchName);
    if (target == QLatin1String("1"))
        return printToError(zel::supportReport());
    QFile file(target);
    const QByteArray report = zel::supportReport().toUtf8();
    if (file.open(QIODevice::WriteOnly) && file.write(report) == report.size() && file.flush())
        return;
    printToError(
        QStringLiteral("%1: cannot write '%2': %3\n").arg(QLatin1String(switchName), target, file.errorString()));
    printToError(QString::fromUtf8(report));
}

void prepareReport()
{
    const QString target = qEnvironmentVariable(switchName);
    if (!target.isEmpty() && target != QLatin1String("0"))
        qAddPostRoutine(deliverReport);
}

// A plugin may take the library out of the process while the application goes on.
void forgetReport()
{
    qRemovePostRoutine(deliverReport);
}

Q_COREAPP_STARTUP_FUNCTION(prepareReport)
Q_DESTRUCTOR_FUNCTION(forgetReport)

} // namespace

QString zel::supportReport()
{
    Lines lines;
    addVersions(lines);
    addApplication(lines);
    addEnvironment(lines);
    addLook(lines, CUIGraphics::use());
    return lines.text();
}
