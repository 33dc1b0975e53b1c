// What the animations cost: CPU time of this process per second, on a real screen, beside a plain widget that repaints
// a pixmap of the same size at the same rate, and beside what Qt has for the purpose under Fusion.
//
// The contenders take turns, a slice each, so that whatever else the machine does meets all of them. One that does not
// move as it should has failed: a standing strip costs nothing.
#include "Clocks.h"
#include "CommandLine.h"

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CMenuEx>
#include <ZelCmnCtrl03/CProgressBarDialogEx>
#include <ZelCmnCtrl03/CProgressBarEx>
#include <ZelCmnCtrl03/CRainbowProgressDialog>

#include <QApplication>
#include <QElapsedTimer>
#include <QPaintEvent>
#include <QPainter>
#include <QProgressBar>
#include <QStyle>
#include <QStyleFactory>
#include <QTextStream>
#include <QTimer>

#include <cmath>
#include <memory>

namespace {

constexpr int scrollInterval = 10; // milliseconds, as the house's animations have it
constexpr int glowInterval = 20;
constexpr int glowTurn = 240;      // milliseconds from entering to leaving: about as long as the glow takes
constexpr int glowSteps = 11;      // in that time
constexpr int pulseTurn = 1400;    // milliseconds: a pulse and its rest
constexpr int pulseSteps = 4;      // in that time
constexpr int unrollingTime = 150; // milliseconds from opening a menu to its last step
constexpr int unrollingSteps = 10; // in that time
constexpr int busyInterval = 16;   // milliseconds, of Qt's busy bar
constexpr int warmUp = 300;        // milliseconds: showing, first painting, loading of artwork
constexpr double sliceSeconds = pulseTurn / 1000.0;
constexpr double stripLimit = 1.3; // times the plain scroll
constexpr double leastShare = 0.5; // of the steps that are due: timers on a busy machine lose some
constexpr QSize stripSize(450, 20);
constexpr QSize maskedStripSize(449, 19); // what CRainbowProgressDialog shows of a strip of that size
constexpr QSize panelStripSize(367, 16);  // what of CProgressBarDialogEx is painted at each step
constexpr QSize windowSize(388, 102);
constexpr QSize buttonSize(96, 28); // of which the text takes the width that it needs
constexpr QSize glowSize(80, 80);

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

/** A window to show, and what is animated: in it, of it, or itself. */
struct Stage
{
    std::unique_ptr<QWidget> window;
    QWidget *moving;
};

using MakeStage = std::function<Stage()>;

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
    QWidget *strip = dialog->findChild<CProgressBarEx *>();
    return {std::move(dialog), strip};
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

// As large as the other thing is: a button has the width of its text.
MakeStage plainScrollLike(const MakeStage &other, int interval)
{
    return [other, interval] {
        const Stage stage = other();
        stage.window->grab(); // sends what is to be told of sizes
        return inWindow(new PlainScroll(stage.moving->size(), interval));
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
    window->resize(windowSize);
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
    return {std::move(window), menu};
}

void runFor(double seconds)
{
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * 1000), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/** How a thing moves: so many paintings in so many milliseconds. */
struct Motion
{
    int steps;
    int milliseconds;
    QSize area; // of each painting; empty where it changes
};

/** Sees whether a widget moves. */
class Observer : public QObject
{
public:
    explicit Observer(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        ++m_paintings;
        m_area = static_cast<QPaintEvent *>(event)->rect().size();
        return false;
    }

    /** What is wrong with it; empty where it moves as it should. */
    QString complaint(const Motion &motion) const
    {
        const int due = qRound(sliceSeconds * 1000 * motion.steps / motion.milliseconds);
        if (m_paintings < due * leastShare)
            return QStringLiteral("painted %1 times in %2 s, and %3 are due")
                .arg(m_paintings)
                .arg(sliceSeconds)
                .arg(due);
        if (motion.area.isEmpty() || motion.area == m_area)
            return QString();
        return QStringLiteral("paints %1 by %2 pixels, not %3 by %4")
            .arg(m_area.width())
            .arg(m_area.height())
            .arg(motion.area.width())
            .arg(motion.area.height());
    }

private:
    int m_paintings = 0;
    QSize m_area;
};

// Each turn with new widgets: the house's ones run from their construction on, shown or not. NaN where nothing moves.
double turnOf(const QString &name, const MakeStage &make, const Motion &motion)
{
    const Stage stage = make();
    stage.window->show();
    stage.window->activateWindow();
    runFor(warmUp / 1000.0);
    const Observer observer(stage.moving);
    const double before = processNanoseconds();
    QElapsedTimer clock;
    clock.start();
    runFor(sliceSeconds);
    const double taken = (processNanoseconds() - before) * 1e3 / static_cast<double>(clock.nsecsElapsed());
    const QString complaint = observer.complaint(motion);
    if (complaint.isEmpty())
        return taken;
    QTextStream(stderr) << name << QStringLiteral(" failed: ") << complaint << QLatin1Char('\n');
    return std::nan("");
}

/** Animations of ours, to which contenders are added. */
class Animation
{
public:
    explicit Animation(const QString &name) : m_comparison{group, name, unit, {}, {}} {}

    Animation &with(const QString &contender, const MakeStage &make, const Motion &motion)
    {
        const QString name = m_comparison.name + QStringLiteral(": ") + contender;
        m_comparison.contenders.push_back({contender, {}, {}, [=] {
                                               return turnOf(name, make, motion);
                                           }});
        return *this;
    }

    Animation &ours(const MakeStage &make, const Motion &motion) { return with(QStringLiteral("ours"), make, motion); }

    Animation &plain(const MakeStage &make, const Motion &motion)
    {
        return with(QStringLiteral("plain"), make, motion);
    }

    Animation &fusion(const MakeStage &make, const Motion &motion)
    {
        return with(QStringLiteral("Fusion"), make, motion);
    }

    Animation &promise(double ratio)
    {
        m_comparison.promise = {Promise::Ratio, ratio, {}};
        return *this;
    }

    operator Comparison() const { return m_comparison; }

private:
    Comparison m_comparison;
};

std::vector<Comparison> animations()
{
    const auto stripOf = [](const QSize &size) {
        return Motion{1, scrollInterval, size};
    };
    const auto busy = [](const QSize &size) {
        return Motion{1, busyInterval, size};
    };
    const Motion pulse{pulseSteps, pulseTurn, {}};
    const Motion glow{glowSteps, glowTurn, {}};
    return {
        Animation(QStringLiteral("CProgressBarEx, QProgressBar"))
            .ours(strip, stripOf(stripSize))
            .plain(plainScroll(stripSize, scrollInterval), stripOf(stripSize))
            .fusion(busyBar(stripSize), busy(stripSize))
            .promise(stripLimit),
        Animation(QStringLiteral("CRainbowProgressDialog"))
            .ours(rainbowDialog, stripOf(maskedStripSize))
            .plain(plainScroll(maskedStripSize, scrollInterval), stripOf(maskedStripSize))
            .fusion(busyBar(maskedStripSize), busy(maskedStripSize)),
        Animation(QStringLiteral("CProgressBarDialogEx"))
            .ours(panel, stripOf(panelStripSize))
            .plain(plainScroll(panelStripSize, scrollInterval), stripOf(panelStripSize))
            .fusion(busyBar(panelStripSize), busy(panelStripSize)),
        Animation(QStringLiteral("CButtonEx, default"))
            .ours(pulsingButton, pulse)
            .plain(plainScrollLike(pulsingButton, pulseTurn / pulseSteps), pulse),
        Animation(QStringLiteral("CButtonEx, glowing"))
            .ours(glowingButton, glow)
            .plain(plainScrollLike(glowingButton, glowInterval), glow),
        Animation(QStringLiteral("CMenuEx, QMenu: opening"))
            .ours(menuThatOpens<CMenuEx>, {unrollingSteps, unrollingTime, {}})
            .fusion(menuThatOpens<QMenu>, {1, unrollingTime, {}}),
    };
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("CPU time of the animations. Ends with 1 when the strip costs more "
                                                    "than %1 times the plain scroll, or something does not move.")
                                         .arg(stripLimit));
    addCommonOptions(parser);
    const QCommandLineOption secondsOption(QStringLiteral("seconds"), QStringLiteral("Seconds for each contender."),
                                           QStringLiteral("seconds"), QStringLiteral("7"));
    parser.addOption(secondsOption);
    parser.process(application);
    bool isNumber = false;
    const int rounds = qRound(parser.value(secondsOption).toDouble(&isNumber) / sliceSeconds);
    if (!isNumber || rounds < 1)
        return refuse(QStringLiteral("--seconds wants a number from 1 up"));

    std::vector<Comparison> comparisons = animations();
    if (const std::optional<int> status = choose(parser, comparisons))
        return *status;
    for (Comparison &comparison : comparisons)
        takeTurns(comparison, rounds, sliceSeconds);
    return report(parser, comparisons, rounds);
}
