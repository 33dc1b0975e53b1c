// The gallery in the hands of a random user, for minutes: zel_soak [--minutes N] [--seed N] [--pixmap-cache KB]
// Ends with 1 when memory grows, something is left over, a count is off or anybody warns.
#include "Census.h"
#include "Diary.h"
#include "MainWindow.h"
#include "RandomUser.h"

#include <ZelCmnCtrl03/CC4StyleFactory>

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QLibraryInfo>
#include <QMutex>
#include <QPixmapCache>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <random>
#include <utility>
#include <vector>

namespace {

constexpr int wrongArguments = 2;
constexpr double defaultMinutes = 10;
constexpr int fewestStages = 6;    // each ends with a count
constexpr double warmUp = 0.3;     // of all stages: caches fill, and the sanitizer's quarantine
constexpr int shortestWarmUp = 60; // seconds; before, every new page fills caches
constexpr long slackKilobytes = 4L * 1024;
constexpr double heapSlack = 0.05;
constexpr double residentSlack = 0.1;
#ifdef __SANITIZE_ADDRESS__
constexpr bool isResidentOurs = false; // the sanitizer's own rises for as long as it runs
#else
constexpr bool isResidentOurs = true;
#endif

long bound(long kilobytes, double slack)
{
    return kilobytes + slackKilobytes + long(double(kilobytes) * slack);
}

QMutex warningsMutex;
QStringList warnings;

void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // The answers of X about windows that have gone meanwhile.
    const bool isOfWindowSystem = message.startsWith(QLatin1String("QXcbConnection: XCB error"));
    if (type == QtDebugMsg || type == QtInfoMsg || isOfWindowSystem)
        return;
    const QMutexLocker locker(&warningsMutex);
    warnings.append(message);
}

struct Options
{
    double minutes = defaultMinutes;
    unsigned seed = 0;
    int pixmapCacheLimit = QPixmapCache::cacheLimit();
};

bool readOptions(Options &options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Plays with the gallery, and counts what is left over."));
    parser.addHelpOption();
    parser.addOptions(
        {{QStringLiteral("minutes"), QStringLiteral("How long; 10 unless told."), QStringLiteral("N")},
         {QStringLiteral("seed"), QStringLiteral("Plays the game of that run again."), QStringLiteral("N")},
         {QStringLiteral("pixmap-cache"), QStringLiteral("The limit of QPixmapCache."), QStringLiteral("KB")}});
    parser.process(*qApp);
    bool areMinutes = true;
    bool isSeed = true;
    bool isLimit = true;
    options.seed = std::random_device()() % 1000000;
    if (parser.isSet(QStringLiteral("minutes")))
        options.minutes = parser.value(QStringLiteral("minutes")).toDouble(&areMinutes);
    if (parser.isSet(QStringLiteral("seed")))
        options.seed = parser.value(QStringLiteral("seed")).toUInt(&isSeed);
    if (parser.isSet(QStringLiteral("pixmap-cache")))
        options.pixmapCacheLimit = parser.value(QStringLiteral("pixmap-cache")).toInt(&isLimit);
    return areMinutes && isSeed && isLimit && options.pixmapCacheLimit >= 0 && options.minutes > 0 &&
           parser.positionalArguments().isEmpty();
}

/** The run: stages of play, each with a rest and a count at its end. */
class Soak : public QObject
{
public:
    explicit Soak(const Options &options)
        : m_stages(std::max(fewestStages, int(options.minutes))),
          m_stageMilliseconds(int(options.minutes * 60000 / m_stages)),
          m_before(Census::take()),
          m_window(std::make_unique<gallery::MainWindow>(gallery::GalleryOptions())),
          m_user(m_window.get(), options.seed)
    {
        m_window->lockRestarts();
        m_window->show();
        connect(&m_user, &RandomUser::rested, this, &Soak::count);
        m_out << Census::heading() << '\n' << m_before.row(QStringLiteral("before")) << '\n';
        m_clock.start();
        play();
    }

    /** What is wrong; empty where all is well. */
    QStringList faults() const { return m_faults; }

private:
    void play()
    {
        m_user.start();
        QTimer::singleShot(m_stageMilliseconds, &m_user, &RandomUser::rest);
    }

    void count()
    {
        m_counts.push_back(Census::take());
        m_out << m_counts.back().row(QStringLiteral("after %1 s").arg(m_clock.elapsed() / 1000)) << '\n';
        m_out.flush();
        if (int(m_counts.size()) < m_stages)
            play();
        else
            end();
    }

    void end()
    {
        m_window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const Census after = Census::take();
        m_out << after.row(QStringLiteral("closed")) << '\n' << m_user.operations() << " operations\n";
        judge(after);
        QCoreApplication::quit();
    }

    void judge(const Census &after)
    {
        judgeMemory();
        expect(!hasGrown(&Census::widgets), QStringLiteral("there are more and more widgets"));
        expect(!hasGrown(&Census::timers), QStringLiteral("there are more and more timers"));
        expect(after.widgets == m_before.widgets, QStringLiteral("widgets are left over: ") + Census::widgetClasses());
        expect(after.timers == m_before.timers, QStringLiteral("timers are left over"));
        expect(QPixmapCache::cacheLimit() == m_pixmapCacheLimit &&
                   mostPixmapKilobytes() <= bound(m_pixmapCacheLimit, 0),
               QStringLiteral("the pixmap cache is above its limit"));
        expect(areStylesReleased(), QStringLiteral("a style is still held"));
        expect(QApplication::overrideCursor() == nullptr, QStringLiteral("a cursor is left over"));
    }

    long mostPixmapKilobytes() const
    {
        long most = 0;
        for (const Census &count : m_counts)
            most = std::max(most, count.pixmapCacheKilobytes);
        return most;
    }

    void judgeMemory()
    {
        const int warmStages = int(m_stages * warmUp);
        if (warmStages * m_stageMilliseconds < shortestWarmUp * 1000)
            return;
        if (!isMemoryOurs()) {
            m_out << "the memory is not judged: this Qt keeps every key that has been in QPixmapCache\n";
            return;
        }
        const Census &warm = m_counts.at(std::size_t(warmStages));
        const Census &last = m_counts.back();
        expect(last.heapKilobytes <= bound(warm.heapKilobytes, heapSlack), QStringLiteral("the heap has grown"));
        expect(!isResidentOurs || last.residentKilobytes <= bound(warm.residentKilobytes, residentSlack),
               QStringLiteral("resident memory has grown"));
    }

    // Qt 5 forgets the keys of pixmaps that are gone, after a while. Qt 6.4 does not: some 200 bytes each, for good.
    static bool isMemoryOurs() { return QPixmapCache::cacheLimit() == 0 || QLibraryInfo::version().majorVersion() < 6; }

    // What is left over once stays; a caret that blinks, or a tool tip on its way out, does not.
    bool hasGrown(int Census::*number) const
    {
        const auto isLess = [number](const Census &left, const Census &right) {
            return left.*number < right.*number;
        };
        const auto third = std::ptrdiff_t(m_counts.size() / 3);
        const Census &mostOfFirst = *std::max_element(m_counts.begin(), m_counts.begin() + third, isLess);
        const Census &leastOfLast = *std::min_element(m_counts.end() - third, m_counts.end(), isLess);
        return isLess(mostOfFirst, leastOfLast);
    }

    void expect(bool holds, const QString &fault)
    {
        if (!holds)
            m_faults.append(fault);
    }

    const int m_stages;
    const int m_stageMilliseconds;
    const Census m_before;
    const int m_pixmapCacheLimit = QPixmapCache::cacheLimit();
    std::unique_ptr<gallery::MainWindow> m_window;
    RandomUser m_user;
    std::vector<Census> m_counts;
    QElapsedTimer m_clock;
    QStringList m_faults;
    QTextStream m_out{stdout};
};

int tell(const QStringList &faults)
{
    QTextStream out(stdout);
    for (const QString &fault : faults)
        out << "FAULT: " << fault << '\n';
    if (faults.isEmpty())
        out << "no fault\n";
    else
        Diary::tell();
    return faults.isEmpty() ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Options options;
    if (!readOptions(options)) {
        QTextStream(stderr) << "zel_soak: --minutes, --seed and --pixmap-cache take a number\n";
        return wrongArguments;
    }
    QPixmapCache::setCacheLimit(options.pixmapCacheLimit);
    qInstallMessageHandler(collect);
    Diary::open(options.seed);
    QTextStream(stdout) << QStringLiteral("seed %1, %2 minutes, Qt %3\n")
                               .arg(options.seed)
                               .arg(options.minutes)
                               .arg(QLatin1String(qVersion()));
    QStringList faults;
    {
        Soak soak(options);
        QApplication::exec();
        faults = soak.faults();
    }
    warnings.removeDuplicates();
    for (const QString &warning : std::as_const(warnings))
        faults.append(QStringLiteral("warned: ") + warning);
    return tell(faults);
}
