#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "CC4Styles/DropDownScrollBarStyle.h"
#include "DropDownEx/DropDownEx.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>

#include <functional>

namespace {

/** A drop-down of the house style, and what it has told. */
class Box : public CDropDownEx
{
public:
    explicit Box(QStyle *style, QWidget *parent = nullptr) : CDropDownEx(parent)
    {
        setStyle(style);
        connect(
            this, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int index) {
                told.append(QStringLiteral("index %1%2").arg(index).arg(QLatin1String(moreSelected() ? " more" : "")));
            });
        connect(
            this, &QComboBox::currentTextChanged, this, [this](const QString &text) { told.append(text); });
        connect(
            this, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { told.append(QStringLiteral("activated %1").arg(index)); });
        connect(this, &CDropDownEx::customClicked, this, [this] { told.append(QStringLiteral("clicked")); });
    }

    void fill(QStringList main, QStringList more)
    {
        addMoreItems(main, more);
        show();
    }
    void press(Qt::MouseButton button = Qt::LeftButton) { QTest::mousePress(this, button); }
    bool isOpen() const { return view()->isVisible(); }
    /** In the open list, as a user of the keyboard does it. */
    void choose(const QString &text)
    {
        view()->setCurrentIndex(model()->index(findText(text), 0));
        QTest::keyClick(view(), Qt::Key_Return);
    }
    QString listed() const
    {
        QStringList texts;
        for (int i = 0; i < count(); ++i)
            texts.append(itemText(i));
        return texts.join(QLatin1Char(','));
    }
    QString tellAll()
    {
        const QString all = told.join(QStringLiteral(", "));
        told.clear();
        return all;
    }

    QStringList told;
};

const QString more = QStringLiteral("More...");

} // namespace

using Step = std::function<void(Box &)>;
Q_DECLARE_METATYPE(Step)

class tst_DropDownEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_style = new CCommonControlStyle; }
    void cleanupTestCase() { delete m_style; }
    void startsAsTold();
    void isComboBoxWithoutMoreItems();
    void opensShort_data();
    void opensShort();
    void stagesWithTheirSignals();
    void keptItems_data();
    void keptItems();
    void nothingChosen();
    void itemsNamedMore();
    void otherButtons();
    void closedBoxStepsIntoMore_data();
    void closedBoxStepsIntoMore();
    void toolTips();
    void listWidth();
    void tellsAssistiveTechnology();
    void outlivesItsStyleUnderStyleSheet();

private:
    CCommonControlStyle *m_style = nullptr;
};

void tst_DropDownEx::startsAsTold()
{
    const Box box(m_style);
    QVERIFY(!box.isEditable() && !box.moreSelected());
    QCOMPARE(box.font().pixelSize(), 14);
    QCOMPARE(box.sizeHint().height(), 20);
    QCOMPARE(box.palette().color(QPalette::Active, QPalette::Text), QColor(0x33, 0x99, 0xCC));
    QCOMPARE(box.palette().color(QPalette::Inactive, QPalette::Text), QColor(0x66, 0x66, 0x66));
    QVERIFY(dynamic_cast<CDropDownScrollBarStyle *>(box.view()->verticalScrollBar()->style()) != nullptr);
}

void tst_DropDownEx::isComboBoxWithoutMoreItems()
{
    Box box(m_style);
    box.addItems({QStringLiteral("a"), more, QStringLiteral("b")});
    box.show();
    box.tellAll();
    box.press();
    box.choose(more);
    QCOMPARE(box.listed(), QStringLiteral("a,More...,b"));
    QVERIFY(!box.isOpen() && !box.moreSelected());
    QCOMPARE(box.tellAll(), QStringLiteral("clicked, index 1, More..., activated 1"));
}

void tst_DropDownEx::opensShort_data()
{
    QTest::addColumn<Step>("open");
    const auto key = [](Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        return Step([=](Box &box) { QTest::keyClick(&box, code, modifiers); });
    };
    QTest::newRow("press") << Step([](Box &box) { box.press(); });
    QTest::newRow("space") << key(Qt::Key_Space);
    QTest::newRow("F4") << key(Qt::Key_F4);
    QTest::newRow("alt down") << key(Qt::Key_Down, Qt::AltModifier);
    QTest::newRow("assistive technology") << Step([](Box &box) {
        QAccessible::queryAccessibleInterface(&box)->actionInterface()->doAction(
            QAccessibleActionInterface::showMenuAction());
    });
}

void tst_DropDownEx::opensShort()
{
    QFETCH(Step, open);
    Box box(m_style);
    box.fill({QStringLiteral("a"), QStringLiteral("b")},
             {QString(), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("B"), QStringLiteral("c")});
    QCOMPARE(box.listed(), QStringLiteral("a,b"));
    for (int turn = 0; turn < 3; ++turn) {
        open(box);
        QVERIFY(box.isOpen());
        QCOMPARE(box.listed(), turn == 0 ? QStringLiteral("a,b,More...") : QStringLiteral("c,a,b,More..."));
        QCOMPARE(box.view()->currentIndex().row(), 0);
        box.choose(more);
        QVERIFY(box.isOpen() && box.moreSelected());
        QCOMPARE(box.listed(), turn == 0 ? QStringLiteral("a,b,c,B,c") : QStringLiteral("c,a,b,c,B"));
        QCOMPARE(box.view()->currentIndex().row(), 0);
        if (turn == 1) { // and look at it only
            QTest::keyClick(box.view(), Qt::Key_Escape);
            QVERIFY(!box.isOpen() && box.moreSelected());
        } else {
            box.choose(QStringLiteral("c"));
        }
        QCOMPARE(box.currentText(), QStringLiteral("c"));
    }
}

void tst_DropDownEx::stagesWithTheirSignals()
{
    Box box(m_style);
    box.fill({QStringLiteral("a"), QStringLiteral("b")}, {QStringLiteral("c"), QStringLiteral("d")});
    QCOMPARE(box.tellAll(), QStringLiteral("index 0, a"));
    box.press();
    QCOMPARE(box.tellAll(), QStringLiteral("clicked"));
    box.choose(more);
    QCOMPARE(box.tellAll(), QStringLiteral("index 2 more, More..., activated 0"));
    box.choose(QStringLiteral("d"));
    QCOMPARE(box.tellAll(), QStringLiteral("index 3, d, activated 3"));
    box.press();
    box.choose(more);
    QCOMPARE(box.tellAll(), QStringLiteral("clicked, index 3 more, More..., activated 0"));
    QCOMPARE(box.currentText(), QStringLiteral("d"));
    box.choose(QStringLiteral("b"));
    QCOMPARE(box.tellAll(), QStringLiteral("index 2, b, activated 2"));
    box.press();
    QCOMPARE(box.listed(), QStringLiteral("a,b,More..."));
    box.choose(more);
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(box.listed(), QStringLiteral("a,b,c,d"));
}

// Items that came beside or before the two lists, or without a signal.
void tst_DropDownEx::keptItems_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("shortList");
    QTest::addColumn<QString>("longList");
    const auto row = [](const char *name, const char *item, const char *shortList, const char *longList) {
        QTest::newRow(name) << item << shortList << longList;
    };
    row("in neither list", "x", "x,a,b,More...", "x,a,b,c,d");
    row("a main one", "b", "a,b,More...", "a,b,c,d");
    row("a further one", "d", "d,a,b,More...", "d,a,b,c");
}

void tst_DropDownEx::keptItems()
{
    QFETCH(QString, item);
    for (const bool isFirst : {true, false}) {
        Box box(m_style);
        if (isFirst)
            box.addItems({item});
        box.fill({QStringLiteral("a"), QStringLiteral("b")}, {QStringLiteral("c"), QStringLiteral("d")});
        if (!isFirst) {
            const QSignalBlocker silent(&box);
            box.addItems({item});
            box.setCurrentIndex(2);
        }
        box.press();
        QTEST(box.listed(), "shortList");
        box.choose(more);
        QTEST(box.listed(), "longList");
        QCOMPARE(box.currentText(), item);
    }
}

void tst_DropDownEx::nothingChosen()
{
    Box box(m_style);
    box.fill({QStringLiteral("a"), QStringLiteral("b")}, {});
    box.setCurrentIndex(-1);
    box.press();
    QCOMPARE(box.listed(), QStringLiteral("a,b,More..."));
    QCOMPARE(box.currentIndex(), -1);
    box.choose(more);
    QCOMPARE(box.listed(), QStringLiteral("a,b"));
    QCOMPARE(box.currentIndex(), 0);
}

void tst_DropDownEx::itemsNamedMore()
{
    Box box(m_style);
    box.fill({more, QStringLiteral("a")}, {QStringLiteral("b"), more});
    for (int i = 0; i < 3; ++i) {
        box.hidePopup();
        box.press();
        QCOMPARE(box.listed(), QStringLiteral("More...,a,More..."));
        box.choose(more);
        QCOMPARE(box.listed(), QStringLiteral("More...,a,b"));
    }
}

void tst_DropDownEx::otherButtons()
{
    Box box(m_style);
    box.fill({QStringLiteral("a")}, {QStringLiteral("b")});
    box.tellAll();
    QMouseEvent right(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);
    static_cast<QObject &>(box).event(&right);
    QVERIFY(!right.isAccepted() && !box.isOpen());
    QCOMPARE(box.listed(), QStringLiteral("a"));
    QCOMPARE(box.tellAll(), QStringLiteral("clicked"));
    box.press(Qt::MiddleButton);
    QVERIFY(!box.isOpen());
    QCOMPARE(box.listed(), QStringLiteral("a,More..."));
    QCOMPARE(box.tellAll(), QStringLiteral("clicked"));
}

// "More..." is in the list since it was opened.
void tst_DropDownEx::closedBoxStepsIntoMore_data()
{
    QTest::addColumn<Step>("step");
    QTest::newRow("down") << Step([](Box &box) { QTest::keyClick(&box, Qt::Key_Down); });
    QTest::newRow("wheel") << Step([](Box &box) {
        QWheelEvent wheel(QPointF(5, 5), box.mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        static_cast<QObject &>(box).event(&wheel);
    });
}

void tst_DropDownEx::closedBoxStepsIntoMore()
{
    QFETCH(Step, step);
    Box box(m_style);
    box.fill({QStringLiteral("a"), QStringLiteral("b")}, {QStringLiteral("c")});
    box.press();
    QTest::keyClick(box.view(), Qt::Key_Escape);
    box.tellAll();
    step(box);
    QCOMPARE(box.tellAll(), QStringLiteral("index 1, b, activated 1"));
    QVERIFY(!box.isOpen());
    step(box);
    QVERIFY(box.isOpen() && box.moreSelected());
    QCOMPARE(box.currentText(), QStringLiteral("b"));
    QTest::keyClick(box.view(), Qt::Key_Escape);
    box.tellAll();
    step(box);
    QCOMPARE(box.tellAll(), QStringLiteral("index 2, c, activated 2"));
}

void tst_DropDownEx::toolTips()
{
    Box box(m_style);
    const auto tips = [&box] {
        QStringList found;
        for (int i = 0; i < box.count(); ++i)
            found.append(box.itemData(i, Qt::ToolTipRole).toString());
        return found.join(QLatin1Char(','));
    };
    box.fill({QStringLiteral("a")}, {QStringLiteral("b")});
    box.enableToolTipsForDropDownElements(true);
    QCOMPARE(tips(), QString());
    box.press();
    QCOMPARE(tips(), QStringLiteral("a,"));
    box.choose(more);
    QCOMPARE(tips(), QStringLiteral("a,b"));
    box.addItems({QStringLiteral("c")});
    QCOMPARE(tips(), QStringLiteral("a,b,c"));
    box.enableToolTipsForDropDownElements(false);
    box.hidePopup();
    box.press();
    QCOMPARE(tips(), QStringLiteral(","));

    QCOMPARE(box.toolTip(), QString());
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &move);
    QCOMPARE(box.toolTip(), QStringLiteral("a"));
    box.setCurrentIndex(-1);
    box.setEnabled(false);
    QCOMPARE(box.toolTip(), QString());
    QVERIFY(!box.isEnabled());
}

void tst_DropDownEx::listWidth()
{
    QWidget window;
    Box box(m_style, &window);
    window.show();
    const QString wide(60, QLatin1Char('W'));
    box.fill({QStringLiteral("first")}, {wide, wide, wide});
    const QRect area = window.screen()->availableGeometry();
    const auto placeAt = [&](int x) {
        box.hidePopup();
        window.move(window.pos() + QPoint(x, area.top()) - box.mapToGlobal(QPoint(0, 0)));
        box.press();
    };
    const auto room = [&] {
        return area.right() - 10 - box.mapToGlobal(QPoint(0, 0)).x();
    };
    placeAt(area.left());
    QCOMPARE(box.view()->minimumWidth(), box.sizeHint().width());
    placeAt(area.right() - 10 - 30);
    QVERIFY(room() > 20 && room() < box.sizeHint().width());
    QCOMPARE(box.view()->minimumWidth(), room());
    placeAt(area.right() + 20); // without a warning
    QCOMPARE(box.view()->minimumWidth(), 0);

    // The box is not made for the further items.
    placeAt(area.left());
    box.setMaxVisibleItems(3);
    box.choose(more);
    QTRY_VERIFY(box.view()->verticalScrollBar()->isVisible());
    QVERIFY(box.view()->visualRect(box.model()->index(1, 0)).width() >= box.view()->sizeHintForColumn(0));
    placeAt(area.right() - 10 - 50);
    box.choose(more);
    QCOMPARE(box.view()->minimumWidth(), room());
}

void tst_DropDownEx::tellsAssistiveTechnology()
{
    Box box(m_style);
    box.fill({QStringLiteral("a")}, {QStringLiteral("b")});
    const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&box);
    QCOMPARE(told->role(), QAccessible::ComboBox);
    box.press();
    box.choose(more);
    QCOMPARE(told->text(QAccessible::Value), QStringLiteral("a"));
    box.choose(QStringLiteral("b"));
    QCOMPARE(told->text(QAccessible::Value), QStringLiteral("b"));
}

void tst_DropDownEx::outlivesItsStyleUnderStyleSheet()
{
    qApp->setStyleSheet(QStringLiteral("QScrollBar { color: red }"));
    {
        QWidget window;
        auto *box = new Box(m_style, &window);
        box->fill({QStringLiteral("a")}, {QStringLiteral("b")});
        box->press();
        QVERIFY(box->isOpen());
        delete box; // with its list open
    }
    qApp->setStyleSheet(QString());
}

HOUSE_TEST_MAIN(tst_DropDownEx)
#include "tst_DropDownEx.moc"
