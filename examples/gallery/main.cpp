#include "GalleryOptions.h"
#include "MainWindow.h"
#include "Shots.h"
#include "pages/Pages.h"

#include <ZelCmnCtrl03/CC4StyleFactory>
#include <ZelCmnCtrl03/InterfaceLocale>

#include <ZelCUtil03/ZelCUtil.h>

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QStyleFactory>
#include <QTextStream>
#include <QTranslator>

#include <memory>

namespace {

constexpr int wrongArguments = 2;
constexpr int fontPixels = 13;

/** Keeps the house style through the whole run: with the last control of a page the factory would forget it. */
class HouseStyle
{
public:
    HouseStyle() { CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style); }
    ~HouseStyle() { CC4StyleFactory::releaseStyle(CC4StyleFactory::CC4Style); }
    Q_DISABLE_COPY(HouseStyle)
};

QStringList argumentsOf(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

// One size everywhere, so that pictures do not depend on where they were taken.
void setFontSize()
{
    QFont font = QApplication::font();
    font.setPixelSize(fontPixels);
    QApplication::setFont(font);
}

// The library's own texts, such as those of the buttons of message boxes; English where there is no better catalogue.
void loadTexts(QTranslator *translator)
{
    const QString directory =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../share/zelcmnctrl03/translations");
    if (!translator->load(zel::interfaceLocale(), QStringLiteral("zelcmnctrl03"), QStringLiteral("_"), directory) &&
        !translator->load(QStringLiteral("zelcmnctrl03_en"), directory))
        QTextStream(stderr) << QStringLiteral("zel_gallery: no texts in %1\n").arg(directory);
}

int takePictures(const gallery::GalleryOptions &options)
{
    const std::unique_ptr<QStyle> foreignStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    gallery::MakerSettings settings;
    settings.texts = gallery::sampleTexts(QString::fromUtf16(GetLanguage()));
    settings.foreignStyle = options.isForeign ? foreignStyle.get() : nullptr;
    settings.isEnabled = !options.isDisabled;
    settings.isAnimated = false;

    std::vector<gallery::PageDescription> wanted = gallery::pages();
    if (!options.pageName.isEmpty())
        wanted = {*gallery::findPage(options.pageName)};
    if (!options.shotsDirectory.isEmpty()) {
        const int status = gallery::savePages(wanted, settings, options.shotsDirectory);
        if (status != 0)
            return status;
    }
    if (options.picturesDirectory.isEmpty())
        return 0;
    return gallery::saveSpecimens(wanted, settings, options.picturesDirectory);
}

// The library goes on without bitmaps and says nothing, which is not what anybody wants to see here.
void warnOfGraphicsDirectory()
{
    const QString directory = qEnvironmentVariable("ZEL_GRAPHICS_DIR");
    if (directory.isEmpty() || QFileInfo(directory).isDir())
        return;
    QTextStream(stderr) << "zel_gallery: ZEL_GRAPHICS_DIR is '" << directory
                        << "', which is no directory, so there will be no bitmaps. Unset it, or give a directory such "
                           "as share/zelcmnctrl03/graphics.\n";
}

int showHelp(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv); // no display needed for this
    QTextStream(stdout) << gallery::helpText();
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const gallery::ParsedOptions parsed = gallery::parseOptions(argumentsOf(argc, argv));
    if (parsed.isHelpWanted)
        return showHelp(argc, argv);
    if (!parsed.error.isEmpty()) {
        QTextStream(stderr) << QStringLiteral("zel_gallery: %1\n").arg(parsed.error);
        return wrongArguments;
    }

    gallery::GalleryOptions options = parsed.options;
    gallery::applyToEnvironment(options);
    warnOfGraphicsDirectory();
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); // message boxes tell of their buttons
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    QTranslator texts;
    loadTexts(&texts);
    QCoreApplication::installTranslator(&texts);
    const HouseStyle houseStyle;
    setFontSize();
    options.isLanguageRightToLeft = zel::interfaceLocale().textDirection() == Qt::RightToLeft;
    options.isRightToLeft = options.isRightToLeft || options.isLanguageRightToLeft;
    if (options.isRightToLeft)
        QApplication::setLayoutDirection(Qt::RightToLeft);
    if (options.takesPictures())
        return takePictures(options);
    gallery::MainWindow window(options);
    window.show();
    return QApplication::exec();
}
