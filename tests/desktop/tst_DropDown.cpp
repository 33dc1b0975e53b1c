// The drop-down and its list in two stages under a real pointer and real keys, in real windows.
#include "RealPointer.h"
#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "DropDownEx/DropDownEx.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

const QString more = QStringLiteral("More...");

QImage pictureOf(const QWidget *widget)
{
    const QPoint place = widget->mapToGlobal(QPoint(0, 0));
    return QApplication::primaryScreen()
        ->grabWindow(0, place.x(), place.y(), widget->width(), widget->height())
        .toImage();
}

// The blue part of a row of pixels through the slider, which is on top.
QRect sliderIn(const QImage &bar)
{
    const int y = bar.width() * 2;
    QRect found;
    for (int x = 0; x < bar.width(); ++x) {
        const QColor color = bar.pixelColor(x, y);
        if (color.blue() - color.red() > 40)
            found |= QRect(x, y, 1, 1);
    }
    return found;
}

} // namespace

class tst_DropDown : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new CCommonControlStyle); }
    void init();
    void cleanup();
    void stagesByPointer();
    void stagesByKeys();
    void textColourFollowsWindow();
    void scrollBarStandsBesideTheText_data();
    void scrollBarStandsBesideTheText();

private:
    QAbstractItemView *list() const { return m_box->view(); }
    void open();
    void choose(const QString &text);
    QString listed(int count) const;

    std::unique_ptr<QWidget> m_window;
    CDropDownEx *m_box = nullptr;
};

void tst_DropDown::init()
{
    HouseTest::init();
    // A click counts only when the list has been open for as long as a double click takes.
    QApplication::setDoubleClickInterval(50);
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(300, 200, 500, 400);
    m_box = new CDropDownEx(m_window.get());
    QStringList main{QStringLiteral("10 x 15"), QStringLiteral("13 x 18")};
    QStringList further;
    for (int i = 20; i < 40; ++i)
        further.append(QStringLiteral("%1 x %2 on paper").arg(i).arg(i + 10));
    m_box->addMoreItems(main, further);
    m_box->setGeometry(40, 40, 120, 21);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    RealPointer::clickAt(m_window->mapToGlobal(QPoint(20, 380)));
    QTRY_VERIFY(m_window->isActiveWindow());
}

void tst_DropDown::cleanup()
{
    m_window.reset();
    HouseTest::cleanup();
}

void tst_DropDown::open()
{
    RealPointer::clickAt(RealPointer::middleOf(m_box));
    QTRY_VERIFY(list()->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(list()->window()));
}

// Until the click counts.
void tst_DropDown::choose(const QString &text)
{
    const QModelIndex index = list()->model()->index(m_box->findText(text), 0);
    QVERIFY(index.isValid());
    list()->scrollTo(index);
    const QSignalSpy chosen(m_box, qOverload<int>(&QComboBox::activated));
    QVERIFY(QTest::qWaitFor(
        [&] {
            RealPointer::clickAt(list()->viewport()->mapToGlobal(list()->visualRect(index).center()));
            return QTest::qWaitFor([&] { return !chosen.isEmpty(); }, 200);
        },
        5000));
}

QString tst_DropDown::listed(int count) const
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(m_box->itemText(i));
    return texts.join(QLatin1Char(','));
}

void tst_DropDown::stagesByPointer()
{
    const QSignalSpy clicked(m_box, &CDropDownEx::customClicked);
    open();
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(listed(m_box->count()), QStringLiteral("10 x 15,13 x 18,More..."));
    choose(more);
    QTRY_VERIFY(list()->isVisible());
    QVERIFY(m_box->moreSelected());
    choose(QStringLiteral("35 x 45 on paper"));
    QTRY_VERIFY(!list()->isVisible());
    QVERIFY(!m_box->moreSelected());
    open();
    QCOMPARE(listed(m_box->count()), QStringLiteral("35 x 45 on paper,10 x 15,13 x 18,More..."));
    QCOMPARE(list()->currentIndex().row(), 0);
    choose(more);
    QTRY_VERIFY(list()->isVisible());
    QCOMPARE(listed(4), QStringLiteral("35 x 45 on paper,10 x 15,13 x 18,20 x 30 on paper"));
    choose(QStringLiteral("13 x 18"));
    open();
    QCOMPARE(listed(m_box->count()), QStringLiteral("10 x 15,13 x 18,More..."));
    QCOMPARE(list()->currentIndex().row(), 1);
    RealPointer::clickAt(m_window->mapToGlobal(QPoint(20, 380)));
    QTRY_VERIFY(!list()->isVisible());
    QCOMPARE(m_box->currentText(), QStringLiteral("13 x 18"));
    QCOMPARE(clicked.count(), 3);
}

void tst_DropDown::stagesByKeys()
{
    m_box->setFocus();
    for (const char *opening : {"space", "F4", "alt+Down"}) {
        RealPointer::key(opening);
        QTRY_VERIFY(list()->isVisible());
        QCOMPARE(m_box->itemText(m_box->count() - 1), more);
        RealPointer::key("End");
        QTRY_COMPARE(list()->currentIndex().row(), m_box->count() - 1);
        RealPointer::key("Return");
        QTRY_VERIFY(m_box->moreSelected() && list()->isVisible());
        RealPointer::key("End");
        QTRY_COMPARE(list()->currentIndex().row(), m_box->count() - 1);
        RealPointer::key("Return");
        QTRY_VERIFY(!list()->isVisible());
        QVERIFY(!m_box->moreSelected());
    }
    QCOMPARE(m_box->currentText(), QStringLiteral("39 x 49 on paper"));
    RealPointer::key("space");
    QTRY_VERIFY(list()->isVisible());
    QCOMPARE(listed(m_box->count()), QStringLiteral("39 x 49 on paper,10 x 15,13 x 18,More..."));
    RealPointer::key("Escape");
    QTRY_VERIFY(!list()->isVisible());
    QCOMPARE(m_box->currentText(), QStringLiteral("39 x 49 on paper"));
}

void tst_DropDown::textColourFollowsWindow()
{
    const auto paints = [this](const QColor &color) {
        const QImage picture = pictureOf(m_box);
        for (int y = 2; y < picture.height() - 2; ++y)
            for (int x = 2; x < picture.width() - 25; ++x)
                if (picture.pixelColor(x, y) == color)
                    return true;
        return false;
    };
    const QColor blue(0x33, 0x99, 0xCC);
    const QColor gray(0x66, 0x66, 0x66);
    QTRY_VERIFY(paints(blue) && !paints(gray));
    QLineEdit other;
    other.setGeometry(900, 200, 200, 100);
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTRY_VERIFY(paints(gray) && !paints(blue));
}

void tst_DropDown::scrollBarStandsBesideTheText_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_DropDown::scrollBarStandsBesideTheText()
{
    QFETCH(Qt::LayoutDirection, direction);
    m_window->setLayoutDirection(direction);
    open();
    QVERIFY(!list()->verticalScrollBar()->isVisible());
    choose(more);
    const QScrollBar *bar = list()->verticalScrollBar();
    QTRY_VERIFY(bar->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(list()->window()));
    // All of the widest item is shown, and its list is below the box.
    QVERIFY(list()->viewport()->width() >= list()->sizeHintForColumn(0));
    QVERIFY(list()->window()->geometry().top() > m_box->mapToGlobal(m_box->rect().bottomLeft()).y() - 1);

    // The slider has as much of the groove on one side as on the other.
    QRect slider;
    QTRY_VERIFY((slider = sliderIn(pictureOf(bar))).width() >= 9);
    const int grooveLeft = 4;
    QVERIFY2(qAbs((slider.left() - grooveLeft) - (bar->width() - 1 - slider.right())) <= 1,
             qPrintable(QStringLiteral("%1 to %2").arg(slider.left()).arg(slider.right())));
}

HOUSE_TEST_MAIN(tst_DropDown)
#include "tst_DropDown.moc"
