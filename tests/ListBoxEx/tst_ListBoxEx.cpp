#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "ListBoxEx/ListBoxEx.h"

#include <QApplication>
#include <QScrollBar>
#include <QTemporaryDir>

class tst_ListBoxEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_style = new CCommonControlStyle; }
    void cleanupTestCase() { delete m_style; }
    void rows();
    void stops();
    void selectedRowsLookTheSame_data();
    void selectedRowsLookTheSame();

private:
    CCommonControlStyle *m_style = nullptr;
};

void tst_ListBoxEx::rows()
{
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("picture.png"));
    QPixmap picture(120, 180); // is made smaller
    picture.fill(Qt::red);
    QVERIFY(picture.save(path));
    CListBoxEx list;
    list.setStyle(m_style);
    QCOMPARE(list.font().pixelSize(), 12);
    const QBrush ordinary = list.palette().brush(QPalette::Inactive, QPalette::Highlight);
    list.addRow(path, QStringLiteral("with"));
    list.addRow(directory.filePath(QStringLiteral("missing.png")), QStringLiteral("without"));
    QCOMPARE(list.count(), 2);
    QCOMPARE(list.item(0)->icon().availableSizes(), QList<QSize>{picture.size()});
    QCOMPARE(list.sizeHintForRow(0), 92);
    QVERIFY(list.item(1)->icon().isNull());
    QCOMPARE(list.item(1)->text(), QStringLiteral("without"));
    QCOMPARE(int(list.item(1)->textAlignment()), int(Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(list.palette().brush(QPalette::Inactive, QPalette::Highlight), ordinary);
}

// For styles that paint a selected row with the brush as it is.
void tst_ListBoxEx::stops()
{
    CListBoxEx list;
    for (int row = 0; row < 3; ++row)
        list.addRow(QString(), QStringLiteral("row"));
    const QGradient *gradient = list.palette().brush(QPalette::Active, QPalette::Highlight).gradient();
    QVERIFY(gradient != nullptr);
    QCOMPARE(static_cast<const QLinearGradient *>(gradient)->finalStop(), QPointF(0, 92.0 * list.count()));
    const QColor top(0x19, 0xA2, 0xCC);
    const QColor bottom(0x0F, 0x6C, 0xB1);
    const QGradientStops expected = {{0, top},       {1 / 3.0 - 0.0001, bottom},
                                     {1 / 3.0, top}, {2 / 3.0 - 0.0001, bottom},
                                     {2 / 3.0, top}, {0.9999, bottom}};
    const QGradientStops stops = gradient->stops();
    QCOMPARE(stops.size(), expected.size());
    for (int i = 0; i < stops.size(); ++i) {
        QVERIFY(qAbs(stops.at(i).first - expected.at(i).first) < 1e-9);
        QCOMPARE(stops.at(i).second, expected.at(i).second);
    }
}

void tst_ListBoxEx::selectedRowsLookTheSame_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("scrolled");
    QTest::newRow("as told") << 4 << 92 << 0;
    QTest::newRow("scrolled by some pixels") << 9 << 92 << 130;
    QTest::newRow("many rows") << 300 << 92 << 92 * 150;
    QTest::newRow("lower rows") << 20 << 40 << 61;
}

void tst_ListBoxEx::selectedRowsLookTheSame()
{
    QFETCH(int, rows);
    QFETCH(int, height);
    QFETCH(int, scrolled);
    CListBoxEx list;
    list.setStyle(m_style);
    list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list.setSelectionMode(QAbstractItemView::MultiSelection);
    for (int row = 0; row < rows; ++row) {
        list.addRow(QString(), QString());
        list.item(row)->setSizeHint(QSize(0, height));
    }
    list.resize(200, 300);
    list.show();
    QApplication::setActiveWindow(&list);
    list.setFocus();
    QTRY_VERIFY(list.hasFocus());
    list.selectAll();
    list.verticalScrollBar()->setValue(scrolled);
    const QImage image = list.viewport()->grab().toImage();
    const QListWidgetItem *first = list.itemAt(100, height + 1); // the second one at least, and all of it
    const int top = list.visualItemRect(first).top();
    QCOMPARE(top, (scrolled + height + 1) / height * height - scrolled);
    const auto isNear = [&](int y, const QColor &color) {
        const QColor painted = image.pixelColor(100, y);
        return qAbs(painted.green() - color.green()) <= 3 && qAbs(painted.red() - color.red()) <= 3;
    };
    for (int row = top; row + height <= image.height(); row += height) {
        QVERIFY2(isNear(row, QColor(0x19, 0xA2, 0xCC)), qPrintable(Picture::colorAt(image, 100, row)));
        QVERIFY(isNear(row + height / 2, QColor(0x14, 0x87, 0xBE)));
        QVERIFY(isNear(row + height - 1, QColor(0x0F, 0x6C, 0xB1)));
    }
    // Nothing of it is left where the application wants another colour.
    QPalette own = list.palette();
    own.setColor(QPalette::Highlight, Qt::red);
    list.setPalette(own);
    QCOMPARE(list.viewport()->grab().toImage().pixelColor(100, top + 5), QColor(Qt::red));
}

HOUSE_TEST_MAIN(tst_ListBoxEx)
#include "tst_ListBoxEx.moc"
