#include "Shots.h"

#include "Page.h"
#include "Panels.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QImageWriter>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLayout>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

namespace gallery {

namespace {

constexpr int settleInterval = 20; // milliseconds
constexpr int settleLimit = 5000;  // far beyond any fading; what has not settled by then is shown as it is

void printError(const QString &text)
{
    QTextStream(stderr) << QStringLiteral("zel_gallery: %1\n").arg(text);
}

template <class Condition>
void waitFor(const Condition &isFulfilled)
{
    if (isFulfilled())
        return;
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (isFulfilled())
            loop.quit();
    });
    poll.start(settleInterval);
    QTimer::singleShot(settleLimit, &loop, &QEventLoop::quit);
    loop.exec();
}

// The first picture is what brings the scroll bars of lists in, and they are laid out by posted events.
QPixmap grab(QWidget *widget)
{
    widget->grab();
    QCoreApplication::processEvents();
    return widget->grab();
}

std::unique_ptr<QWidget> makeGround(Ground ground)
{
    if (ground == Ground::Tray)
        return std::make_unique<TrayPanel>();
    return std::make_unique<QWidget>();
}

// "Image, no text" gives "image-no-text".
QString fileNamePart(const QString &caption)
{
    QString part;
    for (const QChar character : caption.toLower())
        if (character.isLetterOrNumber())
            part += character;
        else if (!part.isEmpty() && !part.endsWith(QLatin1Char('-')))
            part += QLatin1Char('-');
    return part;
}

QString fileName(const PageDescription &page, const SpecimenGroup &group, const Specimen &specimen)
{
    QStringList parts;
    for (const QString &part : {page.name, group.heading, specimen.row, specimen.column})
        parts.append(fileNamePart(part));
    parts.removeAll(QString());
    return parts.join(QLatin1Char('-'));
}

bool save(const QPixmap &pixmap, const QString &directory, const QString &name)
{
    const QString path = QDir(directory).filePath(name + QStringLiteral(".png"));
    QImageWriter writer(path, QByteArrayLiteral("png"));
    if (!writer.write(pixmap.toImage())) {
        printError(QStringLiteral("Cannot write %1: %2").arg(path, writer.errorString()));
        return false;
    }
    QTextStream(stdout) << path << QLatin1Char('\n');
    return true;
}

QJsonObject entry(const PageDescription &page, const SpecimenGroup &group, const Specimen &specimen)
{
    return {
        {QStringLiteral("name"), fileName(page, group, specimen)},
        {QStringLiteral("page"), page.title},
        {QStringLiteral("group"), group.heading},
        {QStringLiteral("row"), specimen.row},
        {QStringLiteral("column"), specimen.column},
    };
}

bool saveList(const QJsonArray &entries, const QString &directory)
{
    QFile file(QDir(directory).filePath(QStringLiteral("pictures.json")));
    if (file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(entries).toJson()) > 0 && file.flush())
        return true;
    printError(QStringLiteral("Cannot write %1: %2").arg(file.fileName(), file.errorString()));
    return false;
}

bool makeDirectory(const QString &directory)
{
    if (QDir().mkpath(directory))
        return true;
    printError(QStringLiteral("Cannot make the directory %1").arg(directory));
    return false;
}

} // namespace

QPixmap picture(const Specimen &specimen, const MakerSettings &settings)
{
    const std::unique_ptr<QWidget> ground = makeGround(specimen.ground);
    ground->setEnabled(settings.isEnabled);
    auto *column = new QVBoxLayout(ground.get());
    column->setContentsMargins(0, 0, 0, 0);
    auto *cell = new SpecimenCell(specimen, settings, ground.get());
    column->addWidget(cell);
    ground->resize(ground->sizeHint());
    waitFor([cell] { return cell->isSettled(); });
    return grab(ground.get());
}

QPixmap picture(const PageDescription &page, const MakerSettings &settings)
{
    Page widget(page, settings);
    widget.resize(widget.sizeHint());
    waitFor([&widget] { return widget.isSettled(); });
    return grab(&widget);
}

int savePages(const std::vector<PageDescription> &pages, const MakerSettings &settings, const QString &directory)
{
    if (!makeDirectory(directory))
        return 1;
    for (const PageDescription &page : pages)
        if (!save(picture(page, settings), directory, page.name))
            return 1;
    return 0;
}

int saveSpecimens(const std::vector<PageDescription> &pages, const MakerSettings &settings, const QString &directory)
{
    if (!makeDirectory(directory))
        return 1;
    QJsonArray entries;
    for (const PageDescription &page : pages) {
        for (const SpecimenGroup &group : page.groups) {
            for (const Specimen &specimen : group.specimens) {
                if (!save(picture(specimen, settings), directory, fileName(page, group, specimen)))
                    return 1;
                entries.append(entry(page, group, specimen));
            }
        }
    }
    return saveList(entries, directory) ? 0 : 1;
}

} // namespace gallery
