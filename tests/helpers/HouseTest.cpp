#include "helpers/HouseTest.h"

#include <QApplication>
#include <QBuffer>
#include <QEnterEvent>
#include <QLibraryInfo>

namespace {

QStringList announced;
QStringList unannounced;
QtMessageHandler testHandler = nullptr;

// Said by the platform plugins themselves, whatever a test does: what offscreen cannot do, and on X11 an answer about a
// window that has gone meanwhile.
bool isOfThePlatform(const QString &message)
{
    return message.contains(QLatin1String("This plugin does not support")) ||
           message.startsWith(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)"));
}

void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool warning = type == QtWarningMsg || type == QtCriticalMsg;
    if (warning && !announced.removeOne(message) && !isOfThePlatform(message))
        unannounced.append(message);
    testHandler(type, context, message);
}

} // namespace

void HouseTest::announceWarning(const QString &message)
{
    announced.append(message);
}

void HouseTest::init()
{
    announced.clear();
    unannounced.clear();
    testHandler = qInstallMessageHandler(collect);
}

void HouseTest::cleanup()
{
    qInstallMessageHandler(testHandler);
    QVERIFY2(announced.isEmpty(), qPrintable(QStringLiteral("did not come: ") + announced.join(QLatin1Char('\n'))));
    QVERIFY2(unannounced.isEmpty(), qPrintable(unannounced.join(QLatin1Char('\n'))));
}

bool Picture::paintsOutside(const QImage &image, const QRect &inside)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (!inside.contains(x, y) && qAlpha(image.pixel(x, y)) != 0)
                return true;
    }
    return false;
}

bool Picture::isBlank(const QImage &image)
{
    return !paintsOutside(image, QRect());
}

QRect Picture::boundsOf(const QImage &image, const QColor &color)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                bounds |= QRect(x, y, 1, 1);
    }
    return bounds;
}

QImage Picture::fromLetters(const char *letters, const Legend &legend, const QColor &ground)
{
    const QStringList rows = QString::fromLatin1(letters).split(QLatin1Char('\n')).mid(1);
    const QSize size(static_cast<int>(rows.constFirst().size()), static_cast<int>(rows.size()));
    return of(size, [&](QPainter *painter) {
        painter->fillRect(QRect(QPoint(0, 0), size), ground);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                for (const QColor &layer : legend.value(rows.at(y).at(x)))
                    painter->fillRect(x, y, 1, 1, layer);
        }
    });
}

// Premultiplied: the colour of a pixel that is hardly there does not matter.
static bool isNear(QRgb one, QRgb other, int tolerance)
{
    const QRgb a = qPremultiply(one);
    const QRgb b = qPremultiply(other);
    return qAbs(qAlpha(a) - qAlpha(b)) <= tolerance && qAbs(qRed(a) - qRed(b)) <= tolerance &&
           qAbs(qGreen(a) - qGreen(b)) <= tolerance && qAbs(qBlue(a) - qBlue(b)) <= tolerance;
}

QString Picture::difference(const QImage &actual, const QImage &wanted, int tolerance)
{
    if (actual.size() != wanted.size())
        return QStringLiteral("%1 by %2 pixels").arg(actual.width()).arg(actual.height());
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x)
            if (!isNear(actual.pixel(x, y), wanted.pixel(x, y), tolerance))
                return QStringLiteral("(%1, %2): %3 in place of %4")
                    .arg(x)
                    .arg(y)
                    .arg(colorAt(actual, x, y), colorAt(wanted, x, y));
    }
    return QString();
}

QByteArray Picture::png(int side)
{
    QImage image(side, side, QImage::Format_Mono);
    image.fill(1);
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return file;
}

QString Picture::colorAt(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y).name(QColor::HexArgb);
}

void Pointer::enter(QWidget &widget)
{
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(&widget, &event);
}

void Pointer::leave(QWidget &widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(&widget, &event);
}

void HouseTestMain::prepare()
{
    if (qEnvironmentVariableIsEmpty("ZEL_TEST_WITHOUT_STYLE_PLUGINS"))
        return;
        // The platform plugin is still needed; nothing else of Qt's plugin folder is found without the library paths.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QString plugins = QLibraryInfo::path(QLibraryInfo::PluginsPath);
#else
    const QString plugins = QLibraryInfo::location(QLibraryInfo::PluginsPath);
#endif
    qputenv("QT_QPA_PLATFORM_PLUGIN_PATH", (plugins + QStringLiteral("/platforms")).toLocal8Bit());
    QCoreApplication::setLibraryPaths(QStringList());
}
