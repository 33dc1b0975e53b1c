// Labels, check boxes and the text browser under a real pointer, in real windows, with real drags.
#include "desktop/RealPointer.h"
#include "helpers/HouseTest.h"

#include "CC4Styles/CC4StyleFactory.h"
#include "CheckBoxEx/CheckBoxEx.h"
#include "LabelEx/LabelEx.h"
#include "TextBrowserEx/TextBrowserEx.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QWheelEvent>

namespace {

/** Starts a drag of these formats from any widget whose moves it filters, and lets go over the target. */
class DragMaker : public QObject
{
public:
    DragMaker(QWidget *source, QWidget *target, const QStringList &formats)
        : m_source(source), m_target(target), m_formats(formats)
    {
        m_source->installEventFilter(this);
        m_target->installEventFilter(this);
        connect(&m_watch, &QTimer::timeout, this, &DragMaker::goOn);
    }

    bool isOver = false;
    Qt::DropAction action = Qt::IgnoreAction;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        m_isPressed |= object == m_source && event->type() == QEvent::MouseButtonPress;
        m_isEntered |= object == m_target && event->type() == QEvent::DragEnter;
        if (object != m_source || event->type() != QEvent::MouseMove || !m_isPressed || m_isDragging)
            return false;
        drag();
        return true;
    }

private:
    void drag()
    {
        m_isDragging = true;
        auto *drag = new QDrag(m_source);
        auto *data = new QMimeData;
        for (const QString &format : m_formats)
            data->setData(format, QByteArrayLiteral("file:///photos/one.jpg\r\n"));
        drag->setMimeData(data);
        m_watch.start(10);
        action = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
        m_watch.stop();
        isOver = true;
    }
    void goOn()
    {
        if (!m_isEntered) {
            m_step = QPoint(m_step.y() + 1, m_step.x()); // a pointer that stands still tells nothing
            RealPointer::moveTo(RealPointer::middleOf(m_target) + m_step);
            return;
        }
        m_watch.stop();
        RealPointer::release(1);
    }

    QWidget *m_source;
    QWidget *m_target;
    QStringList m_formats;
    QTimer m_watch;
    QPoint m_step;
    bool m_isPressed = false;
    bool m_isDragging = false;
    bool m_isEntered = false;
};

const QString photos = QStringLiteral("application/x-tnv2dnditemdata");
const QString files = QStringLiteral("text/uri-list");

} // namespace

class tst_BasicControls : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style); }
    void init();
    void cleanup();
    void photosAreDropped_data();
    void photosAreDropped();
    void dropFromItselfIsAMove();
    void checkBoxLightsUpUnderItsLabel();
    void handOverLinks();
    void wheelOverTheBrowser();

private:
    void showWindow()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        RealPointer::clickAt(away());
        QTRY_VERIFY(QApplication::activeWindow() == m_window.get());
    }
    template <class Widget>
    Widget *add(Widget *widget, const QRect &place)
    {
        widget->setParent(m_window.get());
        widget->setGeometry(place);
        return widget;
    }
    QPoint away() const { return m_window->mapToGlobal(QPoint(10, 10)); }

    std::unique_ptr<QWidget> m_window;
};

void tst_BasicControls::init()
{
    HouseTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(200, 200, 500, 400);
}

void tst_BasicControls::cleanup()
{
    m_window.reset();
    HouseTest::cleanup();
}

void tst_BasicControls::photosAreDropped_data()
{
    QTest::addColumn<QStringList>("formats");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("both formats") << QStringList({photos, files}) << true;
    QTest::newRow("plain files") << QStringList(files) << false;
}

void tst_BasicControls::photosAreDropped()
{
    QFETCH(QStringList, formats);
    QFETCH(bool, isTaken);
    auto *source = add(new QWidget, QRect(50, 50, 60, 60));
    auto *label = add(new CLabelEx, QRect(300, 200, 100, 60));
    label->setText(QStringLiteral("Drop here"));
    label->setDrag(true);
    showWindow();
    const QSignalSpy dropped(label, &CLabelEx::signal_droppedOnButton);
    DragMaker drag(source, label, formats);
    RealPointer::moveTo(RealPointer::middleOf(source));
    RealPointer::press(1);
    RealPointer::moveTo(RealPointer::middleOf(source) + QPoint(5, 5));
    QTRY_VERIFY(drag.isOver);
    QCOMPARE(static_cast<int>(dropped.count()), isTaken ? 1 : 0);
    QCOMPARE(drag.action, isTaken ? Qt::CopyAction : Qt::IgnoreAction);
}

void tst_BasicControls::dropFromItselfIsAMove()
{
    auto *label = add(new CLabelEx, QRect(100, 100, 200, 100));
    label->setDrag(true);
    showWindow();
    const QSignalSpy dropped(label, &CLabelEx::signal_droppedOnButton);
    DragMaker drag(label, label, {photos, files});
    RealPointer::moveTo(RealPointer::middleOf(label));
    RealPointer::press(1);
    RealPointer::moveTo(RealPointer::middleOf(label) + QPoint(5, 5));
    QTRY_VERIFY(drag.isOver);
    QCOMPARE(static_cast<int>(dropped.count()), 1);
    QCOMPARE(drag.action, Qt::MoveAction);
}

void tst_BasicControls::checkBoxLightsUpUnderItsLabel()
{
    auto *box = new CCheckBoxEx(QStringLiteral("Print every photo with a white border"), m_window.get(), 100);
    box->move(100, 100);
    showWindow();
    box->clearFocus(); // it looks the same with the focus as under the mouse
    const QRect indicator(0, 0, 19, box->height());
    const QImage atRest = box->grab(indicator).toImage();
    const auto *label = box->findChild<CLabelEx *>();
    RealPointer::moveTo(RealPointer::middleOf(label));
    QTRY_VERIFY(box->grab(indicator).toImage() != atRest);
    RealPointer::moveTo(away());
    QTRY_COMPARE(box->grab(indicator).toImage(), atRest);
    RealPointer::clickAt(RealPointer::middleOf(label));
    QTRY_VERIFY(box->isChecked() && box->hasFocus());
    RealPointer::clickAt(box->mapToGlobal(indicator.center()));
    QTRY_VERIFY(!box->isChecked());
}

void tst_BasicControls::handOverLinks()
{
    auto *browser = add(new CTextBrowserEx, QRect(100, 100, 300, 100));
    browser->setHtml(QStringLiteral("<a href='one' style='font-size: 60px'>Link</a>"));
    showWindow();
    const QPoint link = browser->viewport()->mapToGlobal(QPoint(30, 40));
    for (int round = 0; round < 2; ++round) {
        RealPointer::moveTo(link);
        QTRY_VERIFY(QApplication::overrideCursor() != nullptr);
        RealPointer::moveTo(link + QPoint(5, 0));
        RealPointer::moveTo(round == 0 ? browser->viewport()->mapToGlobal(QPoint(280, 40)) : away());
        QTRY_VERIFY(QApplication::overrideCursor() == nullptr);
    }
    const QSignalSpy clicked(browser, &QTextBrowser::anchorClicked);
    RealPointer::clickAt(link);
    QTRY_COMPARE(static_cast<int>(clicked.count()), 1);
}

void tst_BasicControls::wheelOverTheBrowser()
{
    struct Parent : public QWidget
    {
        void wheelEvent(QWheelEvent *) override { ++wheels; }
        int wheels = 0;
    };
    auto *parent = new Parent;
    m_window.reset(parent);
    parent->setGeometry(200, 200, 500, 400);
    auto *browser = add(new CTextBrowserEx, QRect(100, 100, 300, 100));
    browser->setPlainText(QStringLiteral("1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12"));
    showWindow();
    RealPointer::clickAt(RealPointer::middleOf(browser), 5);
    RealPointer::xdotool({QStringLiteral("keydown"), QStringLiteral("ctrl")});
    RealPointer::click(5);
    RealPointer::xdotool({QStringLiteral("keyup"), QStringLiteral("ctrl")});
    QTRY_COMPARE(parent->wheels, 1);
    RealPointer::clickAt(away(), 5);
    QTRY_COMPARE(parent->wheels, 2);
    QCOMPARE(browser->verticalScrollBar()->value(), 0);
}

HOUSE_TEST_MAIN(tst_BasicControls)
#include "tst_BasicControls.moc"
