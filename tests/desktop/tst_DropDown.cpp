// The drop-down and its list in two stages under a real pointer and real keys, in real windows.
#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "DropDownEx/DropDownEx.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

const QString more = QStringLiteral("More...");

void xdotool(const QStringList &arguments)
{
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
}

void click(const QPoint &global, int button = 1)
{
    xdotool({QStringLiteral("mousemove"), QString::number(global.x()), QString::number(global.y()),
             QStringLiteral("click"), QString::number(button)});
}

void key(const char *name)
{
    xdotool({QStringLiteral("key"), QLatin1String(name)});
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
    void rightButtonAndWheel();
    void textColourFollowsWindow();
    void scrollBarStandsBesideTheText_data();
    void scrollBarStandsBesideTheText();

private:
    QPoint middle() const { return m_box->mapToGlobal(m_box->rect().center()); }
    QAbstractItemView *list() const { return m_box->view(); }
    void open();
    void choose(const QString &text);
    QString listed(int count) const;
    QImage pictureOf(const QWidget *widget, const char *step) const;

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
    click(m_window->mapToGlobal(QPoint(20, 380)));
    QTRY_VERIFY(m_window->isActiveWindow());
}

void tst_DropDown::cleanup()
{
    m_window.reset();
    HouseTest::cleanup();
}

void tst_DropDown::open()
{
    click(middle());
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
            click(list()->viewport()->mapToGlobal(list()->visualRect(index).center()));
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

// For eyes too: with TST_PICTURES set to a directory, each step leaves its picture there.
QImage tst_DropDown::pictureOf(const QWidget *widget, const char *step) const
{
    const QRect place(widget->mapToGlobal(QPoint(0, 0)), widget->size());
    const QImage picture =
        QApplication::primaryScreen()->grabWindow(0, place.x(), place.y(), place.width(), place.height()).toImage();
    const QString directory = qEnvironmentVariable("TST_PICTURES");
    if (!directory.isEmpty())
        picture.save(QDir(directory).filePath(
            QStringLiteral("%1-%2.png").arg(QLatin1String(QTest::currentTestFunction()), QLatin1String(step))));
    return picture;
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
    click(m_window->mapToGlobal(QPoint(20, 380)));
    QTRY_VERIFY(!list()->isVisible());
    QCOMPARE(m_box->currentText(), QStringLiteral("13 x 18"));
    QCOMPARE(clicked.count(), 3);
}

void tst_DropDown::stagesByKeys()
{
    m_box->setFocus();
    for (const char *opening : {"space", "F4", "alt+Down"}) {
        key(opening);
        QTRY_VERIFY(list()->isVisible());
        QCOMPARE(m_box->itemText(m_box->count() - 1), more);
        key("End");
        QTRY_COMPARE(list()->currentIndex().row(), m_box->count() - 1);
        key("Return");
        QTRY_VERIFY(m_box->moreSelected() && list()->isVisible());
        key("End");
        QTRY_COMPARE(list()->currentIndex().row(), m_box->count() - 1);
        key("Return");
        QTRY_VERIFY(!list()->isVisible());
        QVERIFY(!m_box->moreSelected());
    }
    QCOMPARE(m_box->currentText(), QStringLiteral("39 x 49 on paper"));
    key("space");
    QTRY_VERIFY(list()->isVisible());
    QCOMPARE(listed(m_box->count()), QStringLiteral("39 x 49 on paper,10 x 15,13 x 18,More..."));
    key("Escape");
    QTRY_VERIFY(!list()->isVisible());
    QCOMPARE(m_box->currentText(), QStringLiteral("39 x 49 on paper"));
}

void tst_DropDown::rightButtonAndWheel()
{
    const QSignalSpy clicked(m_box, &CDropDownEx::customClicked);
    click(middle(), 3);
    QTRY_COMPARE(clicked.count(), 1);
    VERIFY_HOLDS_FOR(!list()->isVisible() && m_box->count() == 2, 200);
    click(middle(), 5); // wheel
    QTRY_COMPARE(m_box->currentText(), QStringLiteral("13 x 18"));
    click(middle(), 5);
    VERIFY_HOLDS_FOR(!list()->isVisible() && m_box->currentIndex() == 1, 200);
}

void tst_DropDown::textColourFollowsWindow()
{
    const auto paints = [this](const QColor &color, const char *step) {
        const QImage picture = pictureOf(m_box, step);
        for (int y = 2; y < picture.height() - 2; ++y)
            for (int x = 2; x < picture.width() - 25; ++x)
                if (picture.pixelColor(x, y) == color)
                    return true;
        return false;
    };
    const QColor blue(0x33, 0x99, 0xCC);
    const QColor gray(0x66, 0x66, 0x66);
    QTRY_VERIFY(paints(blue, "active") && !paints(gray, "active"));
    QLineEdit other;
    other.setGeometry(900, 200, 200, 100);
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTRY_VERIFY(paints(gray, "inactive") && !paints(blue, "inactive"));
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
    QTRY_VERIFY((slider = sliderIn(pictureOf(bar, "bar"))).width() >= 9);
    const int grooveLeft = 4;
    QVERIFY2(qAbs((slider.left() - grooveLeft) - (bar->width() - 1 - slider.right())) <= 1,
             qPrintable(QStringLiteral("%1 to %2").arg(slider.left()).arg(slider.right())));
}

HOUSE_TEST_MAIN(tst_DropDown)
#include "tst_DropDown.moc"
