// Slots that delete the control that tells them: at once, and with the next turn of the event loop.
//
// Every control is used as a person uses it, once while all signals are only noted, and then once per signal that came,
// with a slot that deletes the sender. Memory that has been freed is filled (see CMakeLists.txt), so that code of Qt,
// which has no sanitizer, stumbles over it too.
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/CC4StyleFactory.h"
#include "CheckBoxEx/CheckBoxEx.h"
#include "CustomIconButton/CustomIconButton.h"
#include "DropDownEx/DropDownEx.h"
#include "LabelEx/LabelEx.h"
#include "ListBoxEx/ListBoxEx.h"
#include "MenuEx/MenuEx.h"
#include "MessageBoxEx/MessageBoxEx.h"
#include "MessageBoxEx/TitleBar/CustomIconButtons.h"
#include "ProgressBarEx/ProgressBarDialogEx.h"
#include "ProgressDialogEx/ProgressDialogEx.h"
#include "RadioButtonEx/RadioButtonEx.h"
#include "RainbowProgressDialog/RainbowProgressDialog.h"
#include "SliderEx/DSliderEx.h"
#include "SliderEx/SliderEx.h"
#include "SliderEx/ZoomSlider.h"
#include "TextBoxEx/TextBoxEx.h"
#include "TextBrowserEx/TextBrowserEx.h"
#include "TitleButtonEx/TitleButton.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMetaMethod>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>

#include <functional>
#include <utility>

namespace {

using Widget = QPointer<QWidget>;

/** What a person does with a control; each step is left out once the control has gone. */
class Person
{
public:
    explicit Person(QWidget *control) : m_control(control) {}

    QWidget *control() const { return m_control; }
    bool isGone() const { return m_control.isNull(); }

    void comes() { pointer(QEvent::Enter); }
    void goes() { pointer(QEvent::Leave); }
    void press(QPoint at = QPoint(8, 8)) { mouse(QEvent::MouseButtonPress, at, Qt::LeftButton); }
    void move(QPoint to) { mouse(QEvent::MouseMove, to, Qt::NoButton); }
    void release(QPoint at = QPoint(8, 8)) { mouse(QEvent::MouseButtonRelease, at, Qt::LeftButton); }

    void click(QPoint at = QPoint(8, 8))
    {
        press(at);
        release(at);
    }

    void type(Qt::Key key, const QString &text = QString())
    {
        for (const auto kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (isGone())
                return;
            QKeyEvent event(kind, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(m_control, &event);
        }
    }

    void focuses()
    {
        if (!isGone())
            m_control->setFocus(Qt::TabFocusReason);
    }

    void focusesSomethingElse()
    {
        if (isGone() || m_control->parentWidget() == nullptr)
            return;
        m_control->parentWidget()->setFocus(Qt::TabFocusReason);
    }

    /** Goes on with a part of the control. */
    template <typename Part>
    Person with(const QString &name = QString()) const
    {
        return Person(isGone() ? nullptr : m_control->findChild<Part *>(name));
    }

private:
    void pointer(QEvent::Type type)
    {
        if (isGone())
            return;
        if (type == QEvent::Enter)
            Pointer::enter(*m_control);
        else
            Pointer::leave(*m_control);
    }

    void mouse(QEvent::Type type, QPoint at, Qt::MouseButton button)
    {
        if (isGone())
            return;
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, m_control->mapTo(m_control->window(), at), m_control->mapToGlobal(at), button, held,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(m_control, &event);
    }

    Widget m_control;
};

struct Case
{
    const char *name;
    std::function<QWidget *(QWidget *parent)> make;
    std::function<void(Person &)> use;
    QStringList inherited; // signals of Qt's class at which the control may be deleted at once, too
    QStringList onlyLater; // own signals that come from the midst of Qt's code, which does not survive that
};

void useButton(Person &person)
{
    person.comes();
    person.focuses();
    person.click();
    person.type(Qt::Key_Space);
    person.focusesSomethingElse();
    person.goes();
}

void useLabelOfButton(Person &person)
{
    useButton(person);
    person.with<CLabelEx>().click();
}

template <typename Button>
QWidget *makeCheckable(QWidget *parent)
{
    return new Button(QStringLiteral("Print date"), parent, 150);
}

// From the handle at the start to the middle, and by a key.
void useSlider(Person &person)
{
    person.comes();
    person.focuses();
    person.press(QPoint(60, 10));
    person.move(QPoint(90, 10));
    person.release(QPoint(90, 10));
    person.type(Qt::Key_Right);
    person.focusesSomethingElse();
    person.goes();
}

void useRange(Person &person)
{
    person.press(QPoint(4, 10));
    person.move(QPoint(60, 10));
    person.release(QPoint(60, 10));
    person.type(Qt::Key_Right);
}

void useZoom(Person &person)
{
    Person slider = person.with<CSliderEx>();
    useSlider(slider);
    person.with<CButtonEx>(QStringLiteral("ZoomIn")).click(QPoint(2, 2));
    person.with<CButtonEx>(QStringLiteral("ZoomOut")).click(QPoint(2, 2));
}

void useZoomThatSnaps(Person &person)
{
    static_cast<CZoomSlider *>(person.control())->setSliderToSnapping(true);
    useZoom(person);
}

void useTextBox(Person &person)
{
    person.comes();
    person.focuses();
    person.click();
    person.type(Qt::Key_A, QStringLiteral("a"));
    person.type(Qt::Key_Return);
    person.focusesSomethingElse();
    person.goes();
}

QWidget *makeLabel(QWidget *parent)
{
    auto *label = new CLabelEx(parent);
    label->setText(QStringLiteral("Album"));
    label->setDrag(true);
    return label;
}

void useLabel(Person &person)
{
    person.comes();
    person.click();
    person.type(Qt::Key_Space, QStringLiteral(" "));
    person.goes();
    if (person.isGone())
        return;
    QMimeData photos;
    photos.setData(QStringLiteral("application/x-tnv2dnditemdata"), QByteArray());
    photos.setUrls({QUrl(QStringLiteral("file:///photo.jpg"))});
    QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &photos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(person.control(), &enter);
    QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &photos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(person.control(), &drop);
}

QWidget *makeDropDown(QWidget *parent)
{
    auto *box = new CDropDownEx(parent);
    QStringList items{QStringLiteral("10 x 15"), QStringLiteral("13 x 18")};
    QStringList further{QStringLiteral("A4"), QStringLiteral("A3")};
    box->addMoreItems(items, further);
    box->addItem(CDropDownEx::tr("More..."));
    return box;
}

void useDropDown(Person &person)
{
    person.comes();
    person.focuses();
    person.click();
    if (person.isGone())
        return;
    Person list(static_cast<CDropDownEx *>(person.control())->view());
    list.type(Qt::Key_Down);
    list.type(Qt::Key_Return);
    person.type(Qt::Key_Down);
    person.type(Qt::Key_End);
    person.focusesSomethingElse();
    person.goes();
}

QWidget *makeListBox(QWidget *parent)
{
    auto *box = new CListBoxEx(parent);
    box->addRow(QString(), QStringLiteral("Photos"));
    box->addRow(QString(), QStringLiteral("Albums"));
    return box;
}

void useListBox(Person &person)
{
    person.focuses();
    person.type(Qt::Key_Down);
    Person rows(person.isGone() ? nullptr : static_cast<CListBoxEx *>(person.control())->viewport());
    rows.click(QPoint(20, 20));
    person.type(Qt::Key_Return);
}

QWidget *makeBrowser(QWidget *parent)
{
    auto *browser = new CTextBrowserEx(parent);
    browser->setHtml(QStringLiteral("<a href='help'>Help Help Help Help</a> and more"));
    return browser;
}

void useBrowser(Person &person)
{
    person.focuses();
    person.type(Qt::Key_Tab);
    Person text(person.isGone() ? nullptr : static_cast<CTextBrowserEx *>(person.control())->viewport());
    text.move(QPoint(12, 12));
    text.click(QPoint(12, 12));
}

QWidget *makeMenu(QWidget *parent)
{
    auto *menu = new CMenuEx(parent);
    menu->addMenuItem(QStringLiteral("Open"))->setParent(menu);
    menu->addMenuItem(QStringLiteral("Print"))->setParent(menu);
    return menu;
}

void useMenu(Person &person)
{
    static_cast<CMenuEx *>(person.control())->popup(QPoint(30, 30));
    if (person.isGone())
        return;
    const QPointer<CMenuEx> menu = static_cast<CMenuEx *>(person.control());
    QTRY_VERIFY(menu.isNull() || menu->height() == menu->sizeHint().height());
    person.comes();
    person.type(Qt::Key_Down);
    person.type(Qt::Key_Return);
    if (!menu.isNull())
        menu->popup(QPoint(30, 30));
    person.type(Qt::Key_Escape);
}

QWidget *makeMessageBox(QWidget *parent)
{
    return new CMessageBoxEx(parent, QStringLiteral("Print"), QStringLiteral("Out of paper"),
                             QStringLiteral("Put in paper."), QStringLiteral("More help"), true,
                             QStringLiteral("Do not ask again"), QMessageBox::Ok,
                             QMessageBox::Help | CMessageBoxEx::popupButton);
}

// Clicks the parts of a type that are to be seen and meet the condition.
template <typename Part, typename Condition>
void clickParts(Person &person, Condition condition)
{
    QList<QPointer<Part>> parts;
    if (!person.isGone())
        for (Part *part : person.control()->findChildren<Part *>())
            parts.append(part);
    for (const QPointer<Part> &part : std::as_const(parts))
        if (!part.isNull() && part->isVisible() && condition(part.data()))
            Person(part).click();
}

// All that may happen to a box while it waits for its end, and its close button at last.
void answer(Person &person)
{
    person.type(Qt::Key_Escape);
    if (!person.isGone())
        person.control()->windowHandle()->setPosition(60, 70);
    QCoreApplication::processEvents();
    person.with<CLabelEx>().click();
    person.with<CCheckBoxEx>().click();
    if (!person.isGone()) {
        QTimerEvent second(-1); // as each of a count-down that does not end yet
        QCoreApplication::sendEvent(person.control(), &second);
    }
    clickParts<CButtonEx>(
        person, [](const CButtonEx *button) { return !button->isDefault(); });
    clickParts<CCustomIconButtons>(person, [](const CCustomIconButtons *) { return true; });
}

void useMessageBox(Person &person)
{
    QTimer::singleShot(0, person.control(), [person]() mutable { answer(person); });
    static_cast<CMessageBoxEx *>(person.control())->showDialog();
}

void useOkButton(Person &person)
{
    QTimer::singleShot(0, person.control(), [person]() mutable {
        clickParts<CButtonEx>(person, [](const CButtonEx *button) { return button->isDefault(); });
    });
    static_cast<CMessageBoxEx *>(person.control())->showDialog();
}

void useCountDown(Person &person)
{
    auto *box = static_cast<CMessageBoxEx *>(person.control());
    box->setAutoClose(0);
    box->showDialog();
}

QWidget *makeRunningBar(QWidget *parent)
{
    return new CProgressBarDialogEx(QStringLiteral("Printing"), parent);
}

void useRunningBar(Person &person)
{
    auto *panel = static_cast<CProgressBarDialogEx *>(person.control());
    panel->setAutoClose(1);
    panel->showDialog(false);
    const Widget self(panel);
    QVERIFY(QTest::qWaitFor([&self] { return self.isNull() || !self->isVisible(); }));
}

void useDialog(Person &person)
{
    QTimer::singleShot(0, person.control(), [person]() mutable { person.type(Qt::Key_Escape); });
    static_cast<QDialog *>(person.control())->exec();
}

QWidget *makeSlider(QWidget *parent)
{
    auto *slider = new CSliderEx(parent);
    slider->setOrientation(Qt::Horizontal);
    return slider;
}

QWidget *makeZoom(QWidget *parent)
{
    const QString noImage = QStringLiteral("none.png");
    auto *zoom = new CZoomSlider(parent, noImage, noImage);
    zoom->resize(200, 40);
    return zoom;
}

template <typename Control>
QWidget *makePlain(QWidget *parent)
{
    return new Control(parent);
}

const QStringList clicks{QStringLiteral("clicked(bool)"), QStringLiteral("pressed()"), QStringLiteral("released()")};
const QStringList values{QStringLiteral("valueChanged(int)")};
const QStringList edits{QStringLiteral("editingFinished()")};
const QStringList ends{QStringLiteral("finished(int)")};

const QStringList moves{QStringLiteral("MessageBox_Moved()")};
const QStringList focuses{QStringLiteral("focusIn()")};
const QStringList releases{QStringLiteral("tempSliderReleased(int)"), QStringLiteral("temperatureSliderReleased(int)")};

std::vector<Case> allCases()
{
    return {
        {"CButtonEx", makePlain<CButtonEx>, useButton, clicks, {}},
        {"CCheckBoxEx", makePlain<CCheckBoxEx>, useButton, clicks, {}},
        {"CCheckBoxEx with label", makeCheckable<CCheckBoxEx>, useLabelOfButton, clicks, {}},
        {"CRadioButtonEx", makePlain<CRadioButtonEx>, useButton, clicks, {}},
        {"CRadioButtonEx with label", makeCheckable<CRadioButtonEx>, useLabelOfButton, clicks, {}},
        {"CCustomIconButton", makePlain<CCustomIconButton>, useButton, {}, {}},
        {"CTitleButton", makePlain<CTitleButton>, useButton, {}, {}},
        {"CSliderEx", makeSlider, useSlider, values, releases},
        {"CDSliderEx", makePlain<CDSliderEx>, useRange, {}, {}},
        {"CZoomSlider", makeZoom, useZoom, {}, releases},
        {"CZoomSlider that snaps", makeZoom, useZoomThatSnaps, {}, releases},
        {"CTextBoxEx", makePlain<CTextBoxEx>, useTextBox, edits, focuses},
        {"CLabelEx", makeLabel, useLabel, {}, {}},
        {"CDropDownEx", makeDropDown, useDropDown, {}, {}},
        {"CListBoxEx", makeListBox, useListBox, {}, {}},
        {"CTextBrowserEx", makeBrowser, useBrowser, {}, {}},
        {"CMenuEx", makeMenu, useMenu, {}, {}},
        {"CMessageBoxEx", makeMessageBox, useMessageBox, {}, moves},
        {"CMessageBoxEx that a button ends", makeMessageBox, useOkButton, ends, moves},
        {"CMessageBoxEx that counts down", makeMessageBox, useCountDown, ends, moves},
        {"CProgressBarDialogEx", makeRunningBar, useRunningBar, {}, {}},
        {"CProgressDialogEx", makePlain<CProgressDialogEx>, useDialog, ends, {}},
        {"CRainbowProgressDialog", makePlain<CRainbowProgressDialog>, useDialog, ends, {}},
    };
}

} // namespace

class tst_SelfDeletion : public HouseTest
{
    Q_OBJECT

public Q_SLOTS: // connected by their names' index
    void note();
    void endSender();
    void endSenderLater();

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void everySignalComes();
    void senderMayEnd_data();
    void senderMayEnd();

private:
    /** Uses a control of the case in a window, with this slot at one signal or, without one, at all of them. */
    void run(const Case &used, const char *slot, const QByteArray &signal = QByteArray());
    void connectSlot(QObject *control, const char *slot, const QByteArray &signal);
    static QStringList ownSignals(const Case &used);
    QStringList signalsThatCome(const Case &used);

    QStringList m_noted;
    int m_ended = 0;
};

void tst_SelfDeletion::initTestCase()
{
    CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style);
}

void tst_SelfDeletion::cleanupTestCase()
{
    CC4StyleFactory::releaseStyle(CC4StyleFactory::CC4Style);
}

void tst_SelfDeletion::note()
{
    m_noted.append(QString::fromLatin1(sender()->metaObject()->method(senderSignalIndex()).methodSignature()));
}

void tst_SelfDeletion::endSender()
{
    ++m_ended;
    delete sender();
}

void tst_SelfDeletion::endSenderLater()
{
    ++m_ended;
    sender()->deleteLater();
}

void tst_SelfDeletion::connectSlot(QObject *control, const char *slot, const QByteArray &signal)
{
    const QMetaMethod receiver = metaObject()->method(metaObject()->indexOfSlot(slot));
    const int destroyed = QObject::staticMetaObject.indexOfSignal("destroyed(QObject*)");
    for (int i = destroyed + 2; i < control->metaObject()->methodCount(); ++i) { // with its twin without an argument
        const QMetaMethod method = control->metaObject()->method(i);
        if (method.methodType() == QMetaMethod::Signal && (signal.isEmpty() || method.methodSignature() == signal))
            connect(control, method, this, receiver);
    }
}

void tst_SelfDeletion::run(const Case &used, const char *slot, const QByteArray &signal)
{
    QWidget window;
    window.setFocusPolicy(Qt::StrongFocus);
    window.resize(400, 200);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.setFocus();
    const Widget control = used.make(&window);
    if (!control->isWindow()) {
        control->adjustSize();
        control->show();
    }
    connectSlot(control, slot, signal);
    Person person(control);
    used.use(person);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (m_ended > 0)
        QVERIFY(control.isNull());
}

QStringList tst_SelfDeletion::signalsThatCome(const Case &used)
{
    m_noted.clear();
    run(used, "note()");
    m_noted.removeDuplicates();
    return m_noted;
}

QStringList tst_SelfDeletion::ownSignals(const Case &used)
{
    QWidget window;
    const QMetaObject *type = used.make(&window)->metaObject();
    QStringList own;
    for (int i = type->superClass()->methodCount(); i < type->methodCount(); ++i)
        if (type->method(i).methodType() == QMetaMethod::Signal)
            own.append(QString::fromLatin1(type->method(i).methodSignature()));
    return own;
}

// Else the next test would test less than it seems to.
void tst_SelfDeletion::everySignalComes()
{
    QMap<QString, bool> comes;
    for (const Case &used : allCases()) {
        const QStringList come = signalsThatCome(used);
        for (const QString &signal : ownSignals(used)) {
            const QString name =
                QString::fromLatin1(used.name).section(QLatin1Char(' '), 0, 0) + QLatin1Char(' ') + signal;
            comes[name] = comes.value(name) || come.contains(signal);
        }
    }
    QVERIFY(comes.size() > 20);
    QCOMPARE(QStringList(comes.keys(false)).join(QLatin1Char(' ')), QString());
}

void tst_SelfDeletion::senderMayEnd_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("slot");
    const std::vector<Case> cases = allCases();
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const QStringList own = ownSignals(cases[i]);
        for (const QString &signal : signalsThatCome(cases[i])) {
            const auto add = [&](const char *when, const char *slot) {
                QTest::addRow("%s, %s, %s", cases[i].name, qPrintable(signal), when)
                    << int(i) << signal.toLatin1() << QByteArray(slot);
            };
            const bool isOurs = own.contains(signal) && !cases[i].onlyLater.contains(signal);
            if (isOurs || cases[i].inherited.contains(signal))
                add("at once", "endSender()");
            add("later", "endSenderLater()");
        }
    }
}

void tst_SelfDeletion::senderMayEnd()
{
    QFETCH(int, index);
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, slot);
    m_ended = 0;
    run(allCases().at(std::size_t(index)), slot.constData(), signal);
    QVERIFY(m_ended > 0);
}

// In the event loop, as applications are: before it runs, Qt handles events while it shows a message box.
int main(int argc, char *argv[])
{
    HouseTestMain::prepare();
    QApplication application(argc, argv);
    tst_SelfDeletion test;
    QTimer::singleShot(0, &test, [&] { QCoreApplication::exit(QTest::qExec(&test, argc, argv)); });
    return QApplication::exec();
}

#include "tst_SelfDeletion.moc"
