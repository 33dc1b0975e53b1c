// An application of the installed library. It says what is wrong with the installation, and ends with 0 if nothing is.
// Its arguments are plugins that can be loaded.

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/ZelCmnCtrl03Version>

#include <QApplication>
#include <QImage>
#include <QPluginLoader>
#include <QSet>
#include <QStyleFactory>
#include <QTranslator>

#include <cstring>
#include <iostream>

namespace {

// The faces of the house have a gradient. Without the artwork there is only the background.
bool hasFace(CButtonEx &button)
{
    const QImage picture = button.grab().toImage();
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y)
        colors.insert(picture.pixel(picture.width() / 2, y));
    return colors.size() > picture.height() / 3;
}

bool report(bool isGood, const char *complaint)
{
    if (!isGood)
        std::cerr << "consumer: " << complaint << '\n';
    return isGood;
}

bool canLoad(const QStringList &plugins)
{
    bool isGood = true;
    for (const QString &name : plugins) {
        QPluginLoader plugin(name);
        isGood &= report(plugin.load(), qPrintable(plugin.errorString()));
    }
    return isGood;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    CButtonEx button;
    button.resize(button.sizeHint().expandedTo(QSize(80, 0)));
    const bool isVersionRight = std::strcmp(zel::version(), ZELCMNCTRL_VERSION_STR) == 0;
    bool isGood = report(isVersionRight, "headers and library are of different versions");
    isGood &= report(hasFace(button), "a button has no face: the artwork is not found");
    isGood &= report(QStyleFactory::keys().contains(QStringLiteral("cc4")), "the style plugin is not found");
    isGood &= report(QTranslator().load("zelcmnctrl03_en", TRANSLATIONS_DIR), "the catalogues are not found");
    isGood &= canLoad(QApplication::arguments().mid(1));
    return isGood ? 0 : 1;
}
