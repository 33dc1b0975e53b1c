// What the busy indicators cost: CPU time of this process per second of animation, beside a plain widget of the same
// size that scrolls a pixmap at the same rate, and beside Qt's busy progress bar under Fusion.
//
// The contenders take turns, a slice each, so that whatever else the machine does meets all of them. The ratio is the
// median of the ratios within each round.
#include <ZelCmnCtrl03/CProgressBarDialogEx>
#include <ZelCmnCtrl03/CProgressBarEx>
#include <ZelCmnCtrl03/CRainbowProgressDialog>

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QProgressBar>
#include <QStyle>
#include <QStyleFactory>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include <sys/resource.h>

namespace {

constexpr int stepInterval = 10; // milliseconds, as the house's animations have it
constexpr int warmUp = 300;      // milliseconds: showing, first painting, loading of artwork
constexpr double sliceSeconds = 1.0;
constexpr double stripLimit = 1.3; // times the plain scroll
constexpr QSize barSize(450, 20);
constexpr QSize panelSize(388, 102);

constexpr int failed = 1;
constexpr int wrongArguments = 2;

/** The least that a scrolling picture takes: two copies of an opaque pixmap of the widget's size. */
class PlainScroll : public QWidget
{
public:
    explicit PlainScroll(const QSize &size) : m_picture(size)
    {
        m_picture.fill(Qt::darkBlue);
        resize(size);
        setAttribute(Qt::WA_OpaquePaintEvent);
        startTimer(stepInterval);
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        m_offset = (m_offset + 1) % m_picture.width();
        repaint();
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.drawPixmap(m_offset, 0, m_picture);
        painter.drawPixmap(m_offset - m_picture.width(), 0, m_picture);
    }

private:
    QPixmap m_picture;
    int m_offset = 0;
};

/** Counts the paint events of a widget. */
class PaintCounter : public QObject
{
public:
    using QObject::QObject;
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/** A window to show, and in it the widget that is animated. */
struct Stage
{
    std::unique_ptr<QWidget> window;
    QWidget *animated;
};

struct Sample
{
    double cpu;    // milliseconds per second
    double paints; // per second
};

struct Contender
{
    std::function<Stage()> build;
    std::vector<Sample> samples;
};

struct Animation
{
    QString name;
    QSize size;
    Contender own;
    Contender plain;
    Contender busyBar;
};

Stage inWindow(QWidget *widget)
{
    auto window = std::make_unique<QWidget>();
    window->resize(widget->size());
    widget->setParent(window.get());
    widget->move(0, 0);
    widget->show();
    return {std::move(window), widget};
}

Stage strip()
{
    auto *bar = new CProgressBarEx;
    bar->resize(barSize);
    return inWindow(bar);
}

Stage panel()
{
    return inWindow(new CProgressBarDialogEx(QStringLiteral("Printing photos")));
}

Stage rainbowDialog()
{
    auto dialog = std::make_unique<CRainbowProgressDialog>();
    dialog->setText(QStringLiteral("Printing photos"), 0);
    dialog->setText(QStringLiteral("The shop is told what has been ordered."), 1);
    auto *bar = dialog->findChild<CProgressBarEx *>();
    return {std::move(dialog), bar};
}

Contender plainScroll(const QSize &size)
{
    return {[size] { return inWindow(new PlainScroll(size)); }, {}};
}

Contender busyBar(const QSize &size)
{
    return {[size] {
                auto *bar = new QProgressBar;
                QStyle *fusion = QStyleFactory::create(QStringLiteral("Fusion"));
                fusion->setParent(bar);
                bar->setStyle(fusion);
                bar->setRange(0, 0);
                bar->resize(size);
                return inWindow(bar);
            },
            {}};
}

void runFor(double seconds)
{
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * 1000), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

double cpuMilliseconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) * 1000.0 + static_cast<double>(time.tv_usec) / 1000.0;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

// Each turn with new widgets: the house's ones run from their construction on, shown or not.
void takeTurn(Contender &contender)
{
    const Stage stage = contender.build();
    stage.window->show();
    runFor(warmUp / 1000.0);
    PaintCounter counter;
    stage.animated->installEventFilter(&counter);
    const double cpuBefore = cpuMilliseconds();
    QElapsedTimer clock;
    clock.start();
    runFor(sliceSeconds);
    const double seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    contender.samples.push_back({(cpuMilliseconds() - cpuBefore) / seconds, counter.count / seconds});
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double medianOf(const Contender &contender, double Sample::*figure)
{
    std::vector<double> values;
    for (const Sample &sample : contender.samples)
        values.push_back(sample.*figure);
    return median(values);
}

double ratioOf(const Contender &one, const Contender &other)
{
    std::vector<double> ratios;
    for (std::size_t round = 0; round < one.samples.size(); ++round)
        ratios.push_back(one.samples[round].cpu / other.samples[round].cpu);
    return median(ratios);
}

QJsonObject toJson(const Contender &contender)
{
    return {{QStringLiteral("cpuMillisecondsPerSecond"), medianOf(contender, &Sample::cpu)},
            {QStringLiteral("paintsPerSecond"), medianOf(contender, &Sample::paints)}};
}

QJsonObject toJson(const Animation &animation)
{
    QJsonObject object = toJson(animation.own);
    object[QStringLiteral("name")] = animation.name;
    object[QStringLiteral("width")] = animation.size.width();
    object[QStringLiteral("height")] = animation.size.height();
    object[QStringLiteral("plainScroll")] = toJson(animation.plain);
    object[QStringLiteral("timesPlainScroll")] = ratioOf(animation.own, animation.plain);
    object[QStringLiteral("busyProgressBar")] = toJson(animation.busyBar);
    object[QStringLiteral("timesBusyProgressBar")] = ratioOf(animation.own, animation.busyBar);
    return object;
}

void printJson(const std::vector<Animation> &animations, int rounds)
{
    QJsonArray list;
    for (const Animation &animation : animations)
        list.append(toJson(animation));
    const QJsonObject report{{QStringLiteral("qt"), QString::fromLatin1(qVersion())},
                             {QStringLiteral("platform"), QGuiApplication::platformName()},
                             {QStringLiteral("rounds"), rounds},
                             {QStringLiteral("secondsPerRound"), sliceSeconds},
                             {QStringLiteral("stripLimit"), stripLimit},
                             {QStringLiteral("animations"), list}};
    QTextStream(stdout) << QString::fromUtf8(QJsonDocument(report).toJson());
}

QString cell(double value, int width, int digits)
{
    return QStringLiteral("%1").arg(value, width, 'f', digits);
}

void printTable(const std::vector<Animation> &animations, int rounds)
{
    QTextStream out(stdout);
    out << QStringLiteral("Qt %1 on %2, medians of %3 rounds of %4 s. CPU in milliseconds per second.\n\n")
               .arg(QLatin1String(qVersion()), QGuiApplication::platformName())
               .arg(rounds)
               .arg(sliceSeconds)
        << QString(44, QLatin1Char(' ')) << QStringLiteral("|  plain scroll        | busy QProgressBar, Fusion\n")
        << QStringLiteral("animation                  size    CPU  /s   |   CPU  /s   times   |   CPU  /s   times\n");
    for (const Animation &animation : animations) {
        const QString size = QStringLiteral("%1x%2").arg(animation.size.width()).arg(animation.size.height());
        out << animation.name.leftJustified(23) << size.rightJustified(7)
            << cell(medianOf(animation.own, &Sample::cpu), 7, 1)
            << cell(medianOf(animation.own, &Sample::paints), 4, 0);
        for (const Contender *other : {&animation.plain, &animation.busyBar})
            out << QStringLiteral("   |") << cell(medianOf(*other, &Sample::cpu), 6, 1)
                << cell(medianOf(*other, &Sample::paints), 4, 0) << cell(ratioOf(animation.own, *other), 8, 2);
        out << QLatin1Char('\n');
    }
}

int report(const std::vector<Animation> &animations, int rounds, bool isJson)
{
    if (isJson)
        printJson(animations, rounds);
    else
        printTable(animations, rounds);
    const double stripRatio = ratioOf(animations.front().own, animations.front().plain);
    if (stripRatio <= stripLimit)
        return 0;
    QTextStream(stderr) << QStringLiteral("The strip costs %1 times the plain scroll; the limit is %2.\n")
                               .arg(stripRatio, 0, 'f', 2)
                               .arg(stripLimit);
    return failed;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("CPU time of the busy indicators. Ends with 1 when the strip costs "
                                                    "more than %1 times the plain scroll.")
                                         .arg(stripLimit));
    parser.addHelpOption();
    const QCommandLineOption secondsOption(QStringLiteral("seconds"), QStringLiteral("Seconds for each contender."),
                                           QStringLiteral("seconds"), QStringLiteral("10"));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print JSON in place of the table."));
    parser.addOptions({secondsOption, jsonOption});
    parser.process(application);
    bool isNumber = false;
    const int rounds = qRound(parser.value(secondsOption).toDouble(&isNumber) / sliceSeconds);
    if (!isNumber || rounds < 1) {
        QTextStream(stderr) << QStringLiteral("--seconds wants a number from 1 up\n");
        return wrongArguments;
    }

    std::vector<Animation> animations = {
        {QStringLiteral("CProgressBarEx"), barSize, {strip, {}}, plainScroll(barSize), busyBar(barSize)},
        {QStringLiteral("CRainbowProgressDialog"),
         barSize,
         {rainbowDialog, {}},
         plainScroll(barSize),
         busyBar(barSize)},
        {QStringLiteral("CProgressBarDialogEx"), panelSize, {panel, {}}, plainScroll(panelSize), busyBar(panelSize)},
    };
    for (int round = 0; round < rounds; ++round)
        for (Animation &animation : animations)
            for (Contender *contender : {&animation.own, &animation.plain, &animation.busyBar})
                takeTurn(*contender);
    return report(animations, rounds, parser.isSet(jsonOption));
}
