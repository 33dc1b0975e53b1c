#include "Pages.h"

#include "MakerTools.h"
#include "Panels.h"
#include "ProgressTrials.h"

#include <ZelCmnCtrl03/CProgressBarDialogEx>
#include <ZelCmnCtrl03/CProgressBarEx>
#include <ZelCmnCtrl03/CProgressDialogEx>
#include <ZelCmnCtrl03/CRainbowProgressDialog>

#include <QCoreApplication>
#include <QPainter>
#include <QShowEvent>
#include <QTimerEvent>

namespace gallery {

namespace {

constexpr int photoCount = 40;

// The progress widgets move as long as they exist, so what stands still here are pictures of them.

Maker strip(const QSize &size, int steps)
{
    return [size, steps](State, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        CProgressBarEx bar;
        bar.setEnabled(settings.isEnabled);
        bar.resize(size);
        for (int i = 0; i < steps; ++i) {
            QTimerEvent tick(0);
            QCoreApplication::sendEvent(&bar, &tick);
        }
        return new Picture(bar.grab(), parent);
    };
}

QPixmap emptyPicture(const QWidget &widget)
{
    QPixmap picture(widget.size() * widget.devicePixelRatioF());
    picture.setDevicePixelRatio(widget.devicePixelRatioF());
    picture.fill(Qt::transparent);
    return picture;
}

using LabelOf = std::function<QString(const SampleTexts &texts)>;

Maker panel(const LabelOf &labelOf)
{
    return [labelOf](State, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        QWidget window; // on a window of its own the panel would fill its margins
        CProgressBarDialogEx panel(labelOf(settings.texts), &window);
        panel.setEnabled(settings.isEnabled);
        QPixmap picture = emptyPicture(panel);
        panel.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
        return new Picture(picture, parent);
    };
}

// grab() would leave the mask away.
QPixmap maskedPicture(QDialog &dialog)
{
    dialog.adjustSize();
    QShowEvent show;
    QCoreApplication::sendEvent(&dialog, &show);
    dialog.grab(); // fits height and mask
    QPixmap picture = emptyPicture(dialog);
    QPainter painter(&picture);
    painter.setClipRegion(dialog.mask());
    dialog.render(&painter, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return picture;
}

Maker progressDialog(int value, const LabelOf &textOf)
{
    return [value, textOf](State, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        CProgressDialogEx dialog;
        dialog.setEnabled(settings.isEnabled);
        dialog.setRange(0, photoCount);
        dialog.setValue(value);
        dialog.setText(textOf(settings.texts));
        applyForeignStyle(&dialog, settings);
        return new Picture(maskedPicture(dialog), parent);
    };
}

Maker rainbowDialog(const std::vector<LabelOf> &rows)
{
    return [rows](State, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        CRainbowProgressDialog dialog;
        dialog.setEnabled(settings.isEnabled);
        for (std::size_t row = 0; row < rows.size(); ++row)
            dialog.setText(rows[row](settings.texts), static_cast<int>(row));
        return new Picture(maskedPicture(dialog), parent);
    };
}

QString print(const SampleTexts &texts)
{
    return texts.print;
}

QString printAll(const SampleTexts &texts)
{
    return texts.printAll;
}

QString longSentence(const SampleTexts &texts)
{
    return texts.order.tip;
}

QString fileName(const SampleTexts &)
{
    return QStringLiteral("IMG_0012.jpg");
}

// Longer than the panel is wide at first, in every language.
QString longLabel(const SampleTexts &texts)
{
    return QStringLiteral("%1: %2, %3, %4")
        .arg(texts.printAll, texts.order.size, texts.order.paper, texts.order.border);
}

const std::vector<Row> stripRows = {
    {QStringLiteral("CProgressBarEx"), strip(QSize(200, 10), 0)},
    {QStringLiteral("As in the dialog below"), strip(QSize(450, 20), 0)},
    {QStringLiteral("After three seconds"), strip(QSize(450, 20), 300)},
};

const std::vector<Row> panelRows = {
    {QStringLiteral("CProgressBarDialogEx"), panel(printAll)},
    {QStringLiteral("With a long label"), panel(longLabel)},
    {QStringLiteral("On the tray"), panel(printAll), Ground::Tray},
};

const std::vector<Row> dialogRows = {
    {QStringLiteral("CProgressDialogEx"), progressDialog(12, printAll)},
    {QStringLiteral("At the end"), progressDialog(photoCount, printAll)},
    {QStringLiteral("CRainbowProgressDialog"), rainbowDialog({printAll, longSentence, fileName})},
    {QStringLiteral("The heading alone"), rainbowDialog({print})},
    {QStringLiteral("On the tray"), rainbowDialog({print, printAll}), Ground::Tray},
};

const std::vector<Column> pictures = {{QStringLiteral("As a picture"), State::Normal}};

QWidget *makeTrials(State, const MakerSettings &settings, QWidget *parent)
{
    return new ProgressTrials(settings, parent);
}

} // namespace

PageDescription progressPage()
{
    return {
        QStringLiteral("progress"),
        QStringLiteral("Progress"),
        {
            {QStringLiteral("Working controls"),
             QStringLiteral("The panel lies over this window; the dialogs are popups."),
             workingControls({{QString(), makeTrials}})},
            {QStringLiteral("The rainbow strip"),
             QStringLiteral("It scrolls for ever, without a seam, and counts nothing."), table(stripRows, pictures)},
            {QStringLiteral("The busy panel"), QStringLiteral("It is as wide as its longest label has been."),
             table(panelRows, pictures)},
            {QStringLiteral("The dialogs"),
             QStringLiteral("A value on the one, up to three rows of text on the other."), table(dialogRows, pictures)},
        }};
}

} // namespace gallery
