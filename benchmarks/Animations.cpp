// What the animations cost: CPU time of this process per second, on a real screen, beside a plain widget of the same
// size that repaints a pixmap at the same rate, and beside what Qt has for the purpose under Fusion.
//
// The contenders take turns, a slice each, so that whatever else the machine does meets all of them.
#include "Clocks.h"
#include "Report.h"

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CMenuEx>
#include <ZelCmnCtrl03/CProgressBarDialogEx>
#include <ZelCmnCtrl03/CProgressBarEx>
#include <ZelCmnCtrl03/CRainbowProgressDialog>

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QPainter>
#include <QProgressBar>
#include <QStyle>
#include <QStyleFactory>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

constexpr int scrollInterval = 10; // milliseconds, as the house's animations have it
constexpr int pulseInterval = 100;
constexpr int glowInterval = 20;
constexpr int glowTurn = 240;      // milliseconds from entering to leaving: about as long as the glow takes
constexpr int unrollingTime = 150; // milliseconds from opening a menu to its last step
constexpr int warmUp = 300;        // milliseconds: showing, first painting, loading of artwork
constexpr double sliceSeconds = 1.0;
constexpr double stripLimit = 1.3; // times the plain scroll
constexpr QSize stripSize(450, 20);
constexpr QSize panelSize(388, 102);
constexpr QSize buttonSize(96, 28);
constexpr QSize glowSize(80, 80);

constexpr int notKept = 1;
constexpr int wrongArguments = 2;

const QString group = QStringLiteral("CPU per second of animation");
const QString unit = QStringLiteral("ms/s");

/** The least that a moving picture takes: two copies of an opaque pixmap of the widget's size. */
class PlainScroll : public QWidget
{
public:
    PlainScroll(const QSize &size, int interval) : m_picture(size)
    {
        m_picture.fill(Qt::darkBlue);
        resize(size);
        setAttribute(Qt::WA_OpaquePaintEvent);
        startTimer(interval);
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

/** Brings the pointer to a widget and takes it away, again and again. */
class PointerVisits : public QObject
{
public:
    explicit PointerVisits(QWidget *widget) : QObject(widget), m_widget(widget) { startTimer(glowTurn); }

protected:
    void timerEvent(QTimerEvent *) override
    {
        m_isInside = !m_isInside;
        if (m_isInside) {
            const QPointF place(m_widget->rect().center());
            QEnterEvent enter(place, place, QPointF(m_widget->mapToGlobal(place.toPoint())));
            QCoreApplication::sendEvent(m_widget, &enter);
        } else {
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(m_widget, &leave);
        }
    }

private:
    QWidget *m_widget;
    bool m_isInside = false;
};

using Stage = std::unique_ptr<QWidget>; // a window to show
using MakeStage = std::function<Stage()>;

Stage inWindow(QWidget *widget)
{
    auto window = std::make_unique<QWidget>();
    window->resize(widget->size());
    widget->setParent(window.get());
    widget->move(0, 0);
    widget->show();
    return window;
}

Stage strip()
{
    auto *bar = new CProgressBarEx;
    bar->resize(stripSize);
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
    return dialog;
}

Stage pulsingButton()
{
    auto *button = new CButtonEx;
    button->setText(QStringLiteral("Print"));
    button->resize(buttonSize);
    button->setDefault(true);
    return inWindow(button);
}

Stage glowingButton()
{
    auto *button = new CButtonEx;
    button->setButtonStyle(CButtonEx::BSEX_Glowing);
    button->setText(QStringLiteral("Print"));
    button->resize(glowSize);
    new PointerVisits(button);
    return inWindow(button);
}

MakeStage plainScroll(const QSize &size, int interval)
{
    return [size, interval] {
        return inWindow(new PlainScroll(size, interval));
    };
}

MakeStage busyBar(const QSize &size)
{
    return [size] {
        auto *bar = new QProgressBar;
        QStyle *fusion = QStyleFactory::create(QStringLiteral("Fusion"));
        fusion->setParent(bar);
        bar->setStyle(fusion);
        bar->setRange(0, 0);
        bar->resize(size);
        return inWindow(bar);
    };
}

/** Opens a menu, and again when it is open. */
template <typename Menu>
Stage menuThatOpens()
{
    auto window = std::make_unique<QWidget>();
    window->resize(panelSize);
    auto *menu = new Menu(window.get());
    for (int i = 0; i < 12; ++i)
        menu->addAction(QStringLiteral("Command number %1").arg(i));
    if (!std::is_same_v<Menu, CMenuEx>) {
        QStyle *fusion = QStyleFactory::create(QStringLiteral("Fusion"));
        fusion->setParent(menu);
        menu->setStyle(fusion);
    }
    auto *timer = new QTimer(window.get());
    QObject::connect(timer, &QTimer::timeout, menu, [menu, place = window.get()] {
        menu->hide();
        menu->popup(place->mapToGlobal(QPoint(0, 0)));
    });
    timer->start(unrollingTime);
    return window;
}

void runFor(double seconds)
{
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * 1000), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

// Each turn with new widgets: the house's ones run from their construction on, shown or not.
double turnOf(const MakeStage &make)
{
    const Stage stage = make();
    stage->show();
    stage->activateWindow();
    runFor(warmUp / 1000.0);
    const double before = processNanoseconds();
    QElapsedTimer clock;
    clock.start();
    runFor(sliceSeconds);
    return (processNanoseconds() - before) * 1e3 / static_cast<double>(clock.nsecsElapsed());
}

/** An animation of ours, and the others; the second one moves a plain picture. */
struct Animation
{
    Comparison comparison;
    std::vector<MakeStage> stages;
};

Animation animation(const QString &name, MakeStage ours, MakeStage plain, MakeStage peer = nullptr)
{
    Animation one{{group, name, unit, {{QStringLiteral("ours"), {}, {}}, {QStringLiteral("plain"), {}, {}}}, {}},
                  {std::move(ours), std::move(plain)}};
    if (peer) {
        one.comparison.contenders.push_back({QStringLiteral("Fusion"), {}, {}});
        one.stages.push_back(std::move(peer));
    }
    return one;
}

std::vector<Animation> animations()
{
    std::vector<Animation> all = {
        animation(QStringLiteral("CProgressBarEx, QProgressBar"), strip, plainScroll(stripSize, scrollInterval),
                  busyBar(stripSize)),
        animation(QStringLiteral("CRainbowProgressDialog"), rainbowDialog, plainScroll(stripSize, scrollInterval),
                  busyBar(stripSize)),
        animation(QStringLiteral("CProgressBarDialogEx"), panel, plainScroll(panelSize, scrollInterval),
                  busyBar(panelSize)),
        animation(QStringLiteral("CButtonEx, default"), pulsingButton, plainScroll(buttonSize, pulseInterval)),
        animation(QStringLiteral("CButtonEx, glowing"), glowingButton, plainScroll(glowSize, glowInterval)),
        animation(QStringLiteral("CMenuEx, QMenu: opening"), menuThatOpens<CMenuEx>,
                  plainScroll(panelSize, scrollInterval), menuThatOpens<QMenu>),
    };
    all.front().comparison.promise = {Promise::Ratio, stripLimit, {}};
    return all;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("CPU time of the animations. Ends with 1 when the strip costs more "
                                                    "than %1 times the plain scroll.")
                                         .arg(stripLimit));
    parser.addHelpOption();
    const QCommandLineOption secondsOption(QStringLiteral("seconds"), QStringLiteral("Seconds for each contender."),
                                           QStringLiteral("seconds"), QStringLiteral("7"));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print JSON in place of the table."));
    parser.addOptions({secondsOption, jsonOption});
    parser.process(application);
    bool isNumber = false;
    const int rounds = qRound(parser.value(secondsOption).toDouble(&isNumber) / sliceSeconds);
    if (!isNumber || rounds < 1) {
        QTextStream(stderr) << QStringLiteral("--seconds wants a number from 1 up\n");
        return wrongArguments;
    }

    std::vector<Comparison> comparisons;
    for (Animation &one : animations()) {
        for (int round = 0; round < rounds; ++round)
            for (std::size_t i = 0; i < one.stages.size(); ++i)
                one.comparison.contenders[i].samples.push_back(turnOf(one.stages[i]));
        comparisons.push_back(std::move(one.comparison));
    }
    if (parser.isSet(jsonOption))
        printJson(comparisons, rounds);
    else
        printTable(comparisons);
    return isKept(comparisons.front()) ? 0 : notKept;
}
