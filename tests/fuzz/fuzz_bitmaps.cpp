// The bitmaps of the graphics directory: any bytes as a file, and what the painters and controls make of it.
//
// An input is one byte that chooses what paints, two bytes with the length of the first file, the first file, and the
// second. The names that the library loads take turns: the first, the third and so on give the first file.
#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/BlueScrollBarStyle.h"
#include "CC4Styles/DropDownScrollBarStyle.h"
#include "MessageBoxEx/MessageBoxEx.h"
#include "ProgressBarEx/ProgressBarDialogEx.h"
#include "ProgressBarEx/ProgressBarEx.h"
#include "UiGraphics.h"
#include "UiGraphicsBitmaps.h"
#include "fuzz/FuzzApplication.h"
#include "fuzz/FuzzBytes.h"
#include "fuzz/Require.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QRadioButton>
#include <QScrollBar>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr qreal ratios[] = {1.0, 2.0};

QString filePath(int number)
{
    static const QTemporaryDir dir;
    return dir.filePath(QStringLiteral("file%1").arg(number));
}

QString graphicsDir()
{
    static const QTemporaryDir dir;
    return dir.path();
}

// Every name of the library, and its twin of double resolution, is a link to one of the two files.
void linkBitmaps()
{
    const QDir dir(graphicsDir());
    int number = 0;
    for (const LookBitmap &bitmap : lookBitmaps) {
        const QString path = dir.filePath(QString::fromUtf16(bitmap.name));
        FUZZ_REQUIRE(QFile::link(filePath(number), path));
        FUZZ_REQUIRE(QFile::link(filePath(1 - number), doubleResolutionPath(path)));
        number = 1 - number;
    }
}

void writeFile(int number, const QByteArray &bytes)
{
    QFile file(filePath(number));
    if (bytes.isEmpty()) {
        FUZZ_REQUIRE(file.remove() || !file.exists());
        return;
    }
    // On a full disk every input would seem to do no harm.
    FUZZ_REQUIRE(file.open(QIODevice::WriteOnly));
    FUZZ_REQUIRE(file.write(bytes) == bytes.size());
    FUZZ_REQUIRE(file.flush());
}

void paint(QWidget &widget, const QSize &size)
{
    widget.resize(size);
    for (const qreal ratio : ratios) {
        QImage picture(size * ratio, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        widget.render(&picture);
    }
}

void paintButtons()
{
    CButtonEx button;
    for (const auto look : {CButtonEx::BSEX_Normal, CButtonEx::BSEX_Active, CButtonEx::BSEX_Tray}) {
        button.setButtonStyle(look);
        for (const bool isDown : {false, true}) {
            button.setDown(isDown);
            paint(button, QSize(83, 27));
        }
    }
    paint(button, QSize(300, 200));
    button.setEnabled(false);
    paint(button, QSize(20, 1));
}

template <typename Button>
void paintIndicators()
{
    Button button;
    for (const bool isEnabled : {true, false}) {
        button.setEnabled(isEnabled);
        for (const bool isChecked : {false, true}) {
            button.setChecked(isChecked);
            paint(button, QSize(60, 20));
        }
    }
    button.setDown(true);
    paint(button, QSize(60, 20));
}

void paintScrollBars(QStyle *style)
{
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        QScrollBar bar(orientation);
        bar.setStyle(style);
        paint(bar, orientation == Qt::Horizontal ? QSize(120, 21) : QSize(21, 120));
        bar.setEnabled(false);
        paint(bar, QSize(40, 40));
    }
}

void paintMenus()
{
    QComboBox box;
    paint(box, QSize(100, 22));
    QMenu menu;
    QAction *action = menu.addAction(QStringLiteral("Entry"));
    action->setCheckable(true);
    action->setChecked(true);
    menu.addMenu(QStringLiteral("More"));
    paint(menu, menu.sizeHint().expandedTo(QSize(1, 1)));
}

void paintProgress()
{
    CProgressBarEx bar;
    paint(bar, QSize(200, 10));
    CProgressBarDialogEx panel(QStringLiteral("Working"));
    paint(panel, QSize(388, 102));
    paint(panel, QSize(20, 20));
}

void paintMessageBox()
{
    CMessageBoxEx box(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), QString(), QStringLiteral("Help"));
    box.setDialogFlags(7);
    paint(box, box.sizeHint().boundedTo(QSize(800, 600)));
}

void paintAll(int parts)
{
    static CBlueScrollBarStyle blueStyle;
    static CDropDownScrollBarStyle dropDownStyle;
    if ((parts & 1) != 0)
        paintButtons();
    if ((parts & 2) != 0)
        paintIndicators<QCheckBox>();
    if ((parts & 4) != 0)
        paintIndicators<QRadioButton>();
    if ((parts & 8) != 0)
        paintScrollBars(QApplication::style());
    if ((parts & 16) != 0)
        paintScrollBars(&blueStyle);
    if ((parts & 32) != 0)
        paintScrollBars(&dropDownStyle);
    if ((parts & 64) != 0) {
        paintMenus();
        paintMessageBox();
    }
    if ((parts & 128) != 0)
        paintProgress();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    linkBitmaps();
    FuzzApplication::start(graphicsDir());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    const int parts = bytes.byte();
    const int lengthOfFirst = bytes.byte() | bytes.byte() << 8;
    const QByteArray files = bytes.rest();
    writeFile(0, files.left(lengthOfFirst));
    writeFile(1, files.mid(lengthOfFirst));
    paintAll(parts);
    FuzzApplication::restore();
    return 0;
}
