// Starts the look registry in a process of its own, asks what its arguments say, and prints one "key=value" line each.
//
//   color NAME | font PIXELS WEIGHT ITALIC | underlined ... | tooltip ... | held NAME | families NAME
//   path NAME | pixmap NAME RATIO | image NAME | icon NAME | localized PATH | provide FILE | locale
#include "UiGraphics.h"
#include "include/InterfaceLocale.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QStringList>
#include <QTextStream>

namespace {

QString describe(const QFont &font)
{
    return QStringLiteral("%1,%2px,%3pt,%4%5%6%7")
        .arg(font.family())
        .arg(font.pixelSize())
        .arg(font.pointSize())
        .arg(font.bold() ? QStringLiteral("bold") : QStringLiteral("normal"),
             font.italic() ? QStringLiteral(",italic") : QString(),
             font.underline() ? QStringLiteral(",underline") : QString(),
             font.styleStrategy() == QFont::PreferAntialias ? QStringLiteral(",antialias") : QString());
}

QString describe(const QPixmap &pixmap)
{
    if (pixmap.isNull())
        return QStringLiteral("null");
    return QStringLiteral("%1x%2@%3").arg(pixmap.width()).arg(pixmap.height()).arg(pixmap.devicePixelRatioF());
}

class Arguments
{
public:
    explicit Arguments(const QStringList &list) : m_list(list) {}
    bool atEnd() const { return m_list.isEmpty(); }
    QString text() { return m_list.takeFirst(); }
    int number() { return m_list.takeFirst().toInt(); }

private:
    QStringList m_list;
};

QFont fontFor(const QString &question, Arguments &arguments)
{
    const int pixels = arguments.number();
    const int weight = arguments.number();
    const bool italic = arguments.number() != 0;
    if (question == QLatin1String("underlined"))
        return UIGGetUnderlinedFont(pixels, weight, italic);
    return question == QLatin1String("tooltip") ? UIGGetTooltipFont(pixels, weight, italic)
                                                : UIGGetFont(pixels, weight, italic);
}

QStringList fontFamilies()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QFontDatabase::families();
#else
    return QFontDatabase().families();
#endif
}

// A utility library that appears while the process runs.
QString provide(const QString &file)
{
    const QString target = qEnvironmentVariable("PROBE_LIBRARY_DIR") + QLatin1Char('/') + QFileInfo(file).fileName();
    return QFile::copy(file, target) ? QStringLiteral("done") : QStringLiteral("failed");
}

QString replace(const QString &file, const QString &other)
{
    return QFile::remove(file) && QFile::rename(other, file) ? QStringLiteral("done") : QStringLiteral("failed");
}

QString answer(const QString &question, Arguments &arguments)
{
    if (question == QLatin1String("color"))
        return UIGGetColor(arguments.text()).name(QColor::HexArgb);
    if (question == QLatin1String("held"))
        return describe(UIGGetFont(arguments.text()));
    if (question == QLatin1String("families"))
        return fontFamilies().contains(arguments.text()) ? QStringLiteral("yes") : QStringLiteral("no");
    if (question == QLatin1String("path"))
        return CUIGraphics::UIGGetImagePath(arguments.text());
    if (question == QLatin1String("pixmap")) {
        const QString name = arguments.text();
        return describe(UIGGetPixmap(name, arguments.number()));
    }
    if (question == QLatin1String("image"))
        return describe(QPixmap::fromImage(UIGGetImage(arguments.text())));
    if (question == QLatin1String("icon"))
        return UIGGetIcon(arguments.text()).isNull() ? QStringLiteral("null") : QStringLiteral("icon");
    if (question == QLatin1String("localized"))
        return CUIGraphics::UIGetLocalizedPath(arguments.text());
    if (question == QLatin1String("replace")) { // a file by another one
        const QString file = arguments.text();
        return replace(file, arguments.text());
    }
    if (question == QLatin1String("provide"))
        return provide(arguments.text());
    if (question == QLatin1String("locale"))
        return zel::interfaceLocale().name();
    return describe(fontFor(question, arguments));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QTextStream out(stdout);
    Arguments arguments(QCoreApplication::arguments().mid(1));
    while (!arguments.atEnd()) {
        const QString question = arguments.text();
        out << question << '=' << answer(question, arguments) << '\n';
    }
    return 0;
}
