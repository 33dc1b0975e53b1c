#include "helpers/HouseTest.h"

#include "LabelEx/LabelEx.h"

#include <QAccessible>
#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/** Counts the presses and keys that a label lets pass. */
class Parent : public QWidget
{
public:
    int presses = 0;
    int keys = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

bool isEntryAccepted(CLabelEx &label, const QMimeData &data)
{
    QDragEnterEvent event(QPoint(2, 2), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    static_cast<QObject &>(label).event(&event);
    return event.isAccepted();
}

bool isDropAccepted(CLabelEx &label, const QMimeData &data)
{
    QDropEvent event(QPointF(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    static_cast<QObject &>(label).event(&event); // the application passes on only what belongs to a drag of its own
    return event.isAccepted();
}

/** The first and the last column that anything is drawn in, in the middle of some rows; -1 for nothing. */
QPair<int, int> inkIn(const QImage &image, int top, int height)
{
    QPair<int, int> columns(-1, -1);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = top + height / 3; y < top + height; ++y)
            if (image.pixel(x, y) != image.pixel(0, image.height() - 1))
                columns = {columns.first < 0 ? x : columns.first, x};
    }
    return columns;
}

QAccessibleInterface *accessible(QObject &object)
{
    return QAccessible::queryAccessibleInterface(&object);
}

} // namespace

class tst_LabelEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        HouseTest::init();
        m_told.clear();
    }
    void clicks();
    void otherButtonsPass();
    void hovering();
    void drags_data();
    void drags();
    void dropsCountAsHovering();
    void keyboard();
    void keyboardPasses();
    void wrappedRightToLeftText();
    void inAButtonItIsText();
    void accessibleLink();
    void accessibleNames();

private:
    void listen(CLabelEx &label)
    {
        const auto note = [this](const char *what) {
            return [this, what] {
                m_told.append(QLatin1String(what));
            };
        };
        const auto noteWithSender = [this, &label](const char *what) {
            return [this, &label, what](QWidget *sender) {
                m_told.append(QLatin1String(sender == &label ? what : "wrong sender"));
            };
        };
        connect(&label, &CLabelEx::clicked, this, note("clicked"));
        connect(&label, &CLabelEx::clicked2, this, noteWithSender("clicked2"));
        connect(&label, &CLabelEx::slot_Hovered, this, note("slot"));
        connect(&label, &CLabelEx::signal_Hovered, this, noteWithSender("signal"));
        connect(&label, &CLabelEx::signal_droppedOnButton, this, note("dropped"));
    }
    /** What was told since the last time. */
    QString told()
    {
        const QString all = m_told.join(QLatin1Char(','));
        m_told.clear();
        return all;
    }

    QStringList m_told;
};

void tst_LabelEx::clicks()
{
    Parent parent;
    CLabelEx label(&parent);
    label.resize(100, 20);
    listen(label);
    QTest::mousePress(&label, Qt::LeftButton);
    QCOMPARE(told(), QString());
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(told(), QStringLiteral("clicked,clicked2"));
    // The place of the release does not count, nor where the press was.
    QTest::mouseRelease(&label, Qt::LeftButton, Qt::NoModifier, QPoint(500, 500));
    QCOMPARE(told(), QStringLiteral("clicked,clicked2"));
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(2, 2), QPointF(2, 2), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(&label, &second);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(told(), QStringLiteral("clicked,clicked2"));
    QCOMPARE(parent.presses, 0);
    label.click();
    QCOMPARE(told(), QStringLiteral("clicked,clicked2"));
    label.setEnabled(false);
    QTest::mouseClick(&label, Qt::LeftButton);
    label.click();
    QCOMPARE(told(), QString());
}

void tst_LabelEx::otherButtonsPass()
{
    Parent parent;
    CLabelEx label(&parent);
    listen(label);
    for (const auto button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(&label, button);
    QCOMPARE(told(), QString());
    QCOMPARE(parent.presses, 2);
}

void tst_LabelEx::hovering()
{
    CLabelEx label;
    listen(label);
    Pointer::enter(label);
    Pointer::enter(label);
    QCOMPARE(told(), QStringLiteral("slot,signal"));
    Pointer::leave(label);
    Pointer::leave(label);
    QCOMPARE(told(), QStringLiteral("slot,signal,slot,signal"));
    Pointer::enter(label);
    QCOMPARE(told(), QStringLiteral("slot,signal"));
}

void tst_LabelEx::drags_data()
{
    QTest::addColumn<bool>("isOn");
    QTest::addColumn<bool>("hasPhotos");
    QTest::addColumn<bool>("hasFiles");
    QTest::addColumn<bool>("isEntryTaken");
    QTest::addColumn<bool>("isDropTaken"); // asks for files only
    QTest::newRow("both formats") << true << true << true << true << true;
    QTest::newRow("plain files") << true << false << true << false << true;
    QTest::newRow("photos without files") << true << true << false << false << false;
    QTest::newRow("switched off") << false << true << true << false << false;
}

void tst_LabelEx::drags()
{
    QFETCH(bool, isOn);
    QFETCH(bool, hasPhotos);
    QFETCH(bool, hasFiles);
    QFETCH(bool, isDropTaken);
    QMimeData data;
    if (hasPhotos)
        data.setData(QStringLiteral("application/x-tnv2dnditemdata"), QByteArrayLiteral("photo"));
    if (hasFiles)
        data.setUrls({QUrl::fromLocalFile(QStringLiteral("/photos/one.jpg"))});
    CLabelEx label;
    listen(label);
    label.setDrag(false);
    QVERIFY(!label.acceptDrops() && !isEntryAccepted(label, data));
    label.setDrag(true);
    label.setDrag(isOn);
    QVERIFY(label.acceptDrops() && label.hasMouseTracking()); // which switching it off leaves
    QCOMPARE(label.cursor().shape(), Qt::PointingHandCursor);
    QTEST(isEntryAccepted(label, data), "isEntryTaken");
    QCOMPARE(told(), QString());
    QCOMPARE(isDropAccepted(label, data), isDropTaken);
    QCOMPARE(told(), isDropTaken ? QStringLiteral("dropped") : QString());
}

void tst_LabelEx::dropsCountAsHovering()
{
    CLabelEx label;
    listen(label);
    isDropAccepted(label, QMimeData());
    Pointer::enter(label);
    QCOMPARE(told(), QString());
    Pointer::leave(label);
    QCOMPARE(told(), QStringLiteral("slot,signal"));
}

void tst_LabelEx::keyboard()
{
    Parent window;
    auto *column = new QVBoxLayout(&window);
    auto *button = new QPushButton;
    auto *plain = new CLabelEx;
    auto *link = new CLabelEx;
    link->setText(QStringLiteral("Help"));
    for (QWidget *widget : std::initializer_list<QWidget *>{button, plain, link})
        column->addWidget(widget);
    listen(*link);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    button->setFocus();
    const QImage unfocused = link->grab().toImage();
    QTest::keyClick(button, Qt::Key_Tab);
    QVERIFY(link->hasFocus() && !plain->hasFocus());
    QVERIFY(link->grab().toImage() != unfocused);
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(link, key);
        QCOMPARE(told(), QStringLiteral("clicked,clicked2"));
    }
    QTest::keyClick(link, Qt::Key_Tab); // on, and not caught
    QVERIFY(button->hasFocus());
    QCOMPARE(link->grab().toImage(), unfocused);
    QTest::mouseClick(link, Qt::LeftButton);
    QVERIFY(!link->hasFocus());
}

void tst_LabelEx::keyboardPasses()
{
    Parent parent;
    CLabelEx label(&parent);
    QTest::keyClick(&label, Qt::Key_Space);
    QCOMPARE(parent.keys, 1); // nobody to hear it
    listen(label);
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QKeyEvent withControl(QEvent::KeyPress, Qt::Key_Return, Qt::ControlModifier);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
    for (QKeyEvent *event : {&letter, &withControl, &held})
        QCoreApplication::sendEvent(&label, event);
    QCOMPARE(parent.keys, 4);
    QCOMPARE(told(), QString());

    CLabelEx reached(&parent);
    reached.setFocusPolicy(Qt::StrongFocus);
    listen(reached);
    QCOMPARE(reached.focusPolicy(), Qt::StrongFocus);
}

// Qt moves each line by the space at its end, and so cuts off a letter of a full one.
void tst_LabelEx::wrappedRightToLeftText()
{
    CLabelEx label;
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    label.setFont(font);
    label.setWordWrap(true);
    label.setText(QStringLiteral("שלום שלום שלום"));
    const int width = QFontMetrics(font).horizontalAdvance(QStringLiteral("שלום")) + 2;
    label.resize(width, label.heightForWidth(width));
    const QImage image = label.grab().toImage();
    const int lineHeight = image.height() / 3;
    QVERIFY(lineHeight >= 13);
    const QPair<int, int> first = inkIn(image, 0, lineHeight);
    QVERIFY(first.first >= 0 && first.second > width - 5);
    QCOMPARE(inkIn(image, lineHeight, lineHeight), first);
    QCOMPARE(inkIn(image, 2 * lineHeight, lineHeight), first);
    label.setForegroundRole(QPalette::Link);
    QVERIFY(label.grab().toImage() != image);
    label.clear();
    label.grab();
}

void tst_LabelEx::inAButtonItIsText()
{
    QPushButton button;
    CLabelEx label(&button);
    listen(label);
    QVERIFY(!label.isClickable());
    QCOMPARE(label.focusPolicy(), Qt::NoFocus);
    QCOMPARE(accessible(label)->role(), QAccessible::StaticText);
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(told(), QStringLiteral("clicked,clicked2"));
}

void tst_LabelEx::accessibleLink()
{
    CLabelEx label;
    QAccessibleInterface *interface = accessible(label);
    QCOMPARE(interface->role(), QAccessible::StaticText);
    QVERIFY(!interface->state().linked && !interface->state().focusable);
    QPixmap picture(4, 4);
    picture.fill(Qt::red);
    label.setPixmap(picture);
    QCOMPARE(interface->role(), QAccessible::Graphic);
    listen(label);
    QCOMPARE(interface->role(), QAccessible::Link);
    QVERIFY(interface->state().linked && interface->state().focusable);
    QAccessibleActionInterface *actions = interface->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(told(), QStringLiteral("clicked,clicked2"));
}

void tst_LabelEx::accessibleNames()
{
    CLabelEx label;
    const auto name = [&label] {
        return accessible(label)->text(QAccessible::Name);
    };
    label.setText(QStringLiteral("Frames & borders"));
    QCOMPARE(name(), QStringLiteral("Frames & borders"));
    label.setText(QStringLiteral("<a href=\"help\">More <b>help</b></a>"));
    QCOMPARE(name(), QStringLiteral("More help"));
    QPushButton button;
    label.setText(QStringLiteral("&Size"));
    label.setBuddy(&button);
    QCOMPARE(name(), QStringLiteral("Size"));
    label.setAccessibleName(QStringLiteral("Own name"));
    QCOMPARE(name(), QStringLiteral("Own name"));
}

HOUSE_TEST_MAIN(tst_LabelEx)
#include "tst_LabelEx.moc"
