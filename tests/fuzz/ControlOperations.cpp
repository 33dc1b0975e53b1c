#include "fuzz/ControlOperations.h"

#include "CC4Styles/CC4StyleFactory.h"
#include "fuzz/ControlInventory.h"
#include "fuzz/FuzzApplication.h"
#include "fuzz/PropertiesAndSlots.h"

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QApplication>
#include <QEnterEvent>
#include <QHelpEvent>
#include <QImage>
#include <QMimeData>
#include <QStyleFactory>
#include <QTest>
#include <QTimerEvent>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int mostOperations = 60;
constexpr int mostMembers = 3;
constexpr QSize windowSize(400, 300);
constexpr QSize pictureLimit(800, 640);

using Operation = void (*)(Stage &stage, QWidget &control);

constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::NoButton};
constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier,  Qt::ShiftModifier, Qt::ControlModifier,
                                              Qt::AltModifier, Qt::MetaModifier,  Qt::KeypadModifier};
constexpr int keys[] = {Qt::Key_Space,   Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape,    Qt::Key_Tab,
                        Qt::Key_Backtab, Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,        Qt::Key_Down,
                        Qt::Key_Home,    Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown,  Qt::Key_Delete,
                        Qt::Key_Plus,    Qt::Key_F4,     Qt::Key_Menu,   Qt::Key_Backspace, Qt::Key_Select,
                        Qt::Key_A,       Qt::Key_B,      Qt::Key_C,      Qt::Key_V};

QPoint pointFor(Stage &stage, const QWidget &widget)
{
    return stage.bytes.pointIn(widget.size());
}

void sendMouse(Stage &stage, QWidget &widget, QEvent::Type type)
{
    const QPoint point = pointFor(stage, widget);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : stage.bytes.of(buttons);
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(stage.bytes.of(buttons)) | button;
    QMouseEvent event(type, point, widget.mapToGlobal(point), button, held, stage.bytes.of(modifiers));
    QCoreApplication::sendEvent(&widget, &event);
}

void pressMouse(Stage &stage, QWidget &control)
{
    sendMouse(stage, control, QEvent::MouseButtonPress);
}
void releaseMouse(Stage &stage, QWidget &control)
{
    sendMouse(stage, control, QEvent::MouseButtonRelease);
}
void moveMouse(Stage &stage, QWidget &control)
{
    sendMouse(stage, control, QEvent::MouseMove);
}
void doubleClick(Stage &stage, QWidget &control)
{
    sendMouse(stage, control, QEvent::MouseButtonDblClick);
}

// By the window system's road: Qt finds the widget, the popup or the one that has grabbed the mouse. Never with the
// right button: Qt sends its context menu event to the widget even when the press has destroyed it.
void clickInWindow(Stage &stage, QWidget &control)
{
    const QPointer<QWidget> window(control.window());
    QWindow *handle = window->windowHandle();
    if (handle == nullptr || !handle->isVisible())
        return;
    const QPoint point = control.mapTo(window, pointFor(stage, control));
    const int what = stage.bytes.below(4);
    QTest::mouseMove(handle, point);
    if (what > 0 && !window.isNull())
        QTest::mousePress(handle, Qt::LeftButton, stage.bytes.of(modifiers), point);
    if (what > 1 && !window.isNull())
        QTest::mouseRelease(handle, Qt::LeftButton, {}, point);
}

void askForContextMenu(Stage &stage, QWidget &control)
{
    const QPoint point = pointFor(stage, control);
    const auto reason = stage.bytes.flag() ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard;
    QContextMenuEvent event(reason, point, control.mapToGlobal(point));
    QCoreApplication::sendEvent(&control, &event);
}

void turnWheel(Stage &stage, QWidget &control)
{
    const QPoint point = pointFor(stage, control);
    const QPoint turn = stage.bytes.flag() ? QPoint(0, stage.bytes.number()) : QPoint(stage.bytes.number(), 0);
    QWheelEvent event(point, control.mapToGlobal(point), QPoint(), turn, Qt::NoButton, stage.bytes.of(modifiers),
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&control, &event);
}

void sendKey(Stage &stage, QWidget &control, bool isReleased)
{
    const int key = stage.bytes.of(keys);
    const QString text = key < 0x100 ? QString(QChar(key)) : QString();
    const Qt::KeyboardModifiers held = stage.bytes.of(modifiers);
    const bool repeats = stage.bytes.byte() > 250;
    const QPointer<QWidget> alive(&control);
    QKeyEvent press(QEvent::KeyPress, key, held, text, repeats);
    QCoreApplication::sendEvent(&control, &press);
    if (alive.isNull() || !isReleased)
        return;
    QKeyEvent release(QEvent::KeyRelease, key, held, text, repeats);
    QCoreApplication::sendEvent(&control, &release);
}

void typeKey(Stage &stage, QWidget &control)
{
    sendKey(stage, control, true);
}
void holdKey(Stage &stage, QWidget &control)
{
    sendKey(stage, control, false);
}

void typeInWindow(Stage &stage, QWidget &)
{
    QWidget *focus = QApplication::focusWidget();
    if (focus != nullptr)
        sendKey(stage, *focus, true);
}

void changeFocus(Stage &stage, QWidget &control)
{
    constexpr Qt::FocusReason reasons[] = {Qt::TabFocusReason, Qt::MouseFocusReason, Qt::PopupFocusReason,
                                           Qt::ActiveWindowFocusReason};
    const Qt::FocusReason reason = stage.bytes.of(reasons);
    if (stage.bytes.flag()) {
        control.setFocus(reason);
        return;
    }
    QFocusEvent event(stage.bytes.flag() ? QEvent::FocusIn : QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(&control, &event);
}

void enter(Stage &stage, QWidget &control)
{
    const QPointF point = pointFor(stage, control);
    QEnterEvent event(point, point, point);
    QCoreApplication::sendEvent(&control, &event);
}

// All of these have no more to say than their type.
void sendPlainEvent(Stage &stage, QWidget &control)
{
    constexpr QEvent::Type types[] = {
        QEvent::Leave,          QEvent::LanguageChange,       QEvent::LocaleChange,
        QEvent::StyleChange,    QEvent::PaletteChange,        QEvent::FontChange,
        QEvent::EnabledChange,  QEvent::WindowActivate,       QEvent::WindowDeactivate,
        QEvent::LayoutRequest,  QEvent::ParentChange,         QEvent::WindowStateChange,
        QEvent::Close,          QEvent::ScreenChangeInternal, QEvent::LayoutDirectionChange,
        QEvent::ReadOnlyChange, QEvent::ModifiedChange,       QEvent::UngrabMouse};
    QEvent event(stage.bytes.of(types));
    QCoreApplication::sendEvent(&control, &event);
}

void askForHelp(Stage &stage, QWidget &control)
{
    const QPoint point = pointFor(stage, control);
    QHelpEvent event(stage.bytes.flag() ? QEvent::ToolTip : QEvent::WhatsThis, point, control.mapToGlobal(point));
    QCoreApplication::sendEvent(&control, &event);
}

void dragOver(Stage &stage, QWidget &control)
{
    QMimeData data;
    if (stage.bytes.flag())
        data.setData(QStringLiteral("application/x-tnv2dnditemdata"), stage.bytes.text().toUtf8());
    if (stage.bytes.flag())
        data.setUrls({QUrl(stage.bytes.text())});
    const QPoint point = pointFor(stage, control);
    QDragEnterEvent enterEvent(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    const QPointer<QWidget> alive(&control);
    QCoreApplication::sendEvent(&control, &enterEvent);
    if (alive.isNull())
        return;
    if (stage.bytes.flag()) {
        QDragLeaveEvent leaveEvent;
        QCoreApplication::sendEvent(&control, &leaveEvent);
        return;
    }
    QDropEvent drop(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &drop);
}

void resize(Stage &stage, QWidget &control)
{
    control.resize(stage.bytes.size());
}
void fixSize(Stage &stage, QWidget &control)
{
    control.setFixedSize(stage.bytes.size());
}
void adjustSize(Stage &, QWidget &control)
{
    control.adjustSize();
}
void show(Stage &, QWidget &control)
{
    control.show();
}
void hide(Stage &, QWidget &control)
{
    control.hide();
}
void enable(Stage &stage, QWidget &control)
{
    control.setEnabled(stage.bytes.flag());
}

void changeDirection(Stage &stage, QWidget &control)
{
    const Qt::LayoutDirection direction = stage.bytes.flag() ? Qt::RightToLeft : Qt::LeftToRight;
    if (stage.bytes.flag())
        QApplication::setLayoutDirection(direction);
    else
        control.setLayoutDirection(direction);
}

void changeStyleSheet(Stage &stage, QWidget &control)
{
    const QString sheet = stage.bytes.text();
    if (stage.bytes.byte() > 200)
        qApp->setStyleSheet(sheet);
    else
        control.setStyleSheet(sheet);
}

void changeStyle(Stage &stage, QWidget &control)
{
    static QStyle *const fusion = QStyleFactory::create(QStringLiteral("Fusion"));
    static QStyle *const windows = QStyleFactory::create(QStringLiteral("Windows"));
    static QStyle *const headers = CC4StyleFactory::getStyle(CC4StyleFactory::TBWStyle);
    static auto *const blue = new CBlueScrollBarStyle;
    QStyle *const styles[] = {nullptr, fusion, windows, headers, blue};
    const int which = stage.bytes.byte();
    if (which < 250)
        control.setStyle(styles[which % std::size(styles)]);
    else
        QApplication::setStyle(QStringLiteral("Fusion")); // the application's own choice destroys the house style
}

void changeLook(Stage &stage, QWidget &control)
{
    switch (stage.bytes.below(3)) {
    case 0: control.setPalette(stage.bytes.palette()); return;
    case 1: control.setFont(stage.bytes.font()); return;
    default: control.setAutoFillBackground(stage.bytes.flag()); return;
    }
}

// Without waiting: every timer of the control and its parts is over now, or so it is told.
void endTimers(Stage &stage, QWidget &control)
{
    QVector<QPointer<QObject>> objects{&control};
    for (QObject *part : control.findChildren<QObject *>())
        objects.append(part);
    const int times = 1 + stage.bytes.below(20);
    for (const QPointer<QObject> &object : objects) {
        for (int i = 0; i < times && !object.isNull(); ++i) {
            const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(object);
            if (timers.isEmpty())
                break;
            QTimerEvent event(timers.at(i % timers.size()).timerId);
            QCoreApplication::sendEvent(object, &event);
        }
    }
}

void processEvents(Stage &, QWidget &)
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void paint(Stage &stage, QWidget &control)
{
    const qreal ratios[] = {1.0, 2.0, 1.25};
    const qreal ratio = stage.bytes.of(ratios);
    QImage picture(control.size().boundedTo(pictureLimit).expandedTo(QSize(1, 1)) * ratio,
                   QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    control.render(&picture, QPoint(), QRegion(QRect(QPoint(), control.size().boundedTo(pictureLimit))));
}

void touchAccessible(Stage &stage, QAccessibleInterface &face, const QPointer<QWidget> &control)
{
    const bool isWidget = face.object() != nullptr;
    const QPointer<QObject> object(face.object());
    face.role();
    face.state();
    face.rect();
    for (int kind = QAccessible::Name; kind <= QAccessible::Accelerator; ++kind)
        face.text(static_cast<QAccessible::Text>(kind));
    if (QAccessibleValueInterface *value = face.valueInterface()) {
        value->currentValue();
        value->minimumValue();
        value->maximumValue();
        value->minimumStepSize();
        value->setCurrentValue(stage.bytes.number());
    }
    if (control.isNull() || (isWidget && object.isNull())) // the value was news that somebody destroyed it for
        return;
    QAccessibleActionInterface *actions = face.actionInterface();
    if (actions == nullptr)
        return;
    const QStringList names = actions->actionNames();
    if (!names.isEmpty())
        actions->doAction(names.at(stage.bytes.below(static_cast<int>(names.size()))));
}

void assist(Stage &stage, QWidget &control)
{
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&control);
    if (face == nullptr)
        return;
    const QPointer<QWidget> alive(&control);
    control.sizeHint(); // until it lays itself out, a menu finds actions that are gone by their old places
    QAccessibleInterface *child = face->child(stage.bytes.below(face->childCount())); // Qt's own know no others
    face->childAt(stage.bytes.number(), stage.bytes.number());
    if (child != nullptr && child->isValid())
        touchAccessible(stage, *child, alive);
    if (!alive.isNull())
        touchAccessible(stage, *QAccessible::queryAccessibleInterface(&control), alive);
}

void setProperty(Stage &stage, QWidget &control)
{
    PropertiesAndSlots::setProperty(control, stage.bytes);
}
void callSlot(Stage &stage, QWidget &control)
{
    PropertiesAndSlots::callSlot(control, stage.bytes);
}

void callFamily(Stage &stage, QWidget &)
{
    const Stage::Member &member = stage.members.at(stage.current);
    member.kind->call(member.widget, stage.bytes);
}

// Who is told something may destroy the one that tells.
void destroyWhenTold(Stage &stage, QWidget &control)
{
    PropertiesAndSlots::destroyOnSignal(control, stage.bytes);
}
void destroyLater(Stage &, QWidget &control)
{
    control.deleteLater();
}
void destroy(Stage &, QWidget &control)
{
    delete &control;
}

void destroyWindow(Stage &stage, QWidget &)
{
    if (stage.bytes.below(4) == 0)
        delete stage.window;
}

void changeParent(Stage &stage, QWidget &control)
{
    control.setParent(stage.bytes.flag() ? stage.window : nullptr, control.windowFlags()); // a menu stays a popup
    control.show();
}

struct NamedOperation
{
    const char *name;
    Operation run;
};

#define OPERATION(function)                                                                                            \
    {                                                                                                                  \
#function, function                                                                                            \
    }

// The corpus names an operation by its place here: new ones come last.
constexpr NamedOperation operations[] = {
    OPERATION(pressMouse),
    OPERATION(releaseMouse),
    OPERATION(moveMouse),
    OPERATION(doubleClick),
    OPERATION(clickInWindow),
    OPERATION(turnWheel),
    OPERATION(typeKey),
    OPERATION(holdKey),
    OPERATION(typeInWindow),
    OPERATION(changeFocus),
    OPERATION(enter),
    OPERATION(sendPlainEvent),
    OPERATION(askForHelp),
    OPERATION(dragOver),
    OPERATION(resize),
    OPERATION(fixSize),
    OPERATION(adjustSize),
    OPERATION(show),
    OPERATION(hide),
    OPERATION(enable),
    OPERATION(changeDirection),
    OPERATION(changeStyleSheet),
    OPERATION(changeStyle),
    OPERATION(changeLook),
    OPERATION(endTimers),
    OPERATION(processEvents),
    OPERATION(paint),
    OPERATION(assist),
    OPERATION(setProperty),
    OPERATION(callSlot),
    OPERATION(callFamily),
    OPERATION(destroyWhenTold),
    OPERATION(destroyLater),
    OPERATION(destroy),
    OPERATION(destroyWindow),
    OPERATION(changeParent),
    OPERATION(callFamily),
    OPERATION(setProperty),
    OPERATION(paint),
    OPERATION(endTimers),
    OPERATION(askForContextMenu),
};

#undef OPERATION

} // namespace

Stage::Stage(FuzzBytes &inputBytes) : bytes(inputBytes), window(new QWidget)
{
    window->resize(windowSize);
    new QVBoxLayout(window);
    const int count = 1 + bytes.below(mostMembers);
    for (int i = 0; i < count; ++i)
        addMember();
    window->show();
}

Stage::~Stage()
{
    for (const Member &member : members)
        delete member.widget;
    delete window;
    FuzzApplication::restore();
}

void Stage::addMember()
{
    const QVector<ControlKind> &inventory = controlInventory();
    const ControlKind &kind = inventory.at(bytes.below(static_cast<int>(inventory.size())));
    FuzzApplication::tell("make", kind.className);
    QWidget *widget = kind.make(window, bytes);
    if (!widget->isWindow())
        window->layout()->addWidget(widget);
    members.append({&kind, widget});
}

void Stage::play()
{
    for (int i = 0; i < mostOperations && !bytes.isAtEnd(); ++i) {
        const int operation = bytes.byte();
        current = (operation >> 6) % static_cast<int>(members.size());
        QWidget *widget = control();
        if (widget == nullptr)
            continue;
        const NamedOperation &chosen = operations[operation % 64 % std::size(operations)];
        FuzzApplication::tell(chosen.name, widget->metaObject()->className());
        chosen.run(*this, *widget);
    }
    for (current = 0; current < members.size(); ++current)
        if (QWidget *widget = control())
            paint(*this, *widget);
}
