#include "Pages.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CLabelEx>

#include <QDrag>
#include <QHBoxLayout>
#include <QIcon>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace gallery {

namespace {

constexpr int textWidth = 160;
constexpr QSize dropSize(120, 64);
constexpr int photoPixels = 48;
constexpr int photoGap = 12;

using Prepare = void (*)(CLabelEx *label, const SampleTexts &texts);

void setText(CLabelEx *label, const SampleTexts &texts)
{
    label->setText(texts.showDetails);
}

void makeLink(CLabelEx *label, const SampleTexts &texts)
{
    QFont font = label->font();
    font.setUnderline(true);
    label->setFont(font);
    QPalette palette = label->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setBrush(group, QPalette::WindowText, palette.brush(group, QPalette::Highlight));
    label->setPalette(palette);
    label->setText(texts.showDetails);
    label->setCursor(Qt::PointingHandCursor);
}

void setLongText(CLabelEx *label, const SampleTexts &texts)
{
    label->setText(texts.order.tip);
    label->setWordWrap(true);
    label->setFixedWidth(textWidth);
    label->setMinimumHeight(label->heightForWidth(textWidth));
}

void setImage(CLabelEx *label, const SampleTexts &texts)
{
    label->setPixmap(sampleIcon(QStringLiteral("photos-48")).pixmap(QSize(photoPixels, photoPixels)));
    label->setAccessibleName(texts.photos);
}

void makeDropPlace(CLabelEx *label, const SampleTexts &texts)
{
    label->setText(texts.folder);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::Box);
    label->setFixedSize(dropSize);
    label->setDrag(true);
}

void reportUse(CLabelEx *label, const MakerSettings &settings)
{
    const auto report = settings.report;
    QObject::connect(
        label, &CLabelEx::clicked2, label, [report] { report(QStringLiteral("clicked")); });
    QObject::connect(
        label, &CLabelEx::signal_Hovered, label, [report] { report(QStringLiteral("the pointer came or went")); });
    QObject::connect(label, &CLabelEx::signal_droppedOnButton, label,
                     [report] { report(QStringLiteral("photos were dropped")); });
}

Maker label(Prepare prepare)
{
    return [prepare](State state, const MakerSettings &settings, QWidget *parent) {
        auto *label = new CLabelEx(parent);
        prepare(label, settings.texts);
        if (state == State::Disabled)
            label->setEnabled(false);
        applyStyles(label, state, settings);
        label->resize(label->sizeHint().expandedTo(label->minimumSize()));
        reportUse(label, settings);
        return label;
    };
}

/** A picture that is dragged away: as a photo of the application, or as any file. */
class DraggedPhoto : public QLabel
{
public:
    DraggedPhoto(const QString &image, bool isPhoto) : m_isPhoto(isPhoto)
    {
        setPixmap(sampleIcon(image).pixmap(QSize(photoPixels, photoPixels)));
        setCursor(Qt::OpenHandCursor);
    }

protected:
    void mousePressEvent(QMouseEvent *) override
    {
        auto *contents = new QMimeData;
        contents->setUrls({QUrl(QStringLiteral("file:///photo.jpg"))});
        if (m_isPhoto)
            contents->setData(QStringLiteral("application/x-tnv2dnditemdata"), QByteArrayLiteral("photo"));
        auto *drag = new QDrag(this);
        drag->setMimeData(contents);
        drag->setPixmap(pixmap(Qt::ReturnByValue));
        drag->exec(Qt::CopyAction);
    }

private:
    bool m_isPhoto;
};

QWidget *makeDragAndDrop(State, const MakerSettings &settings, QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *line = new QHBoxLayout(panel);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(photoGap);
    auto *photo = new DraggedPhoto(QStringLiteral("photos-48"), true);
    photo->setToolTip(settings.texts.photos);
    auto *file = new DraggedPhoto(QStringLiteral("printer-48"), false);
    file->setToolTip(settings.texts.open);
    auto *place = new CLabelEx;
    makeDropPlace(place, settings.texts);
    reportUse(place, settings);
    for (QWidget *widget : {static_cast<QWidget *>(photo), static_cast<QWidget *>(place), static_cast<QWidget *>(file)})
        line->addWidget(widget);
    applyForeignStyle(panel, settings);
    panel->resize(panel->sizeHint());
    return panel;
}

const std::vector<Row> rows = {
    {QStringLiteral("CLabelEx"), label(setText)},
    {QStringLiteral("As a link"), label(makeLink)},
    {QStringLiteral("Long text, wrapped"), label(setLongText)},
    {QStringLiteral("Image"), label(setImage), Ground::Tray},
    {QStringLiteral("Place for drops"), label(makeDropPlace)},
};

const std::vector<Column> columns = {
    {QStringLiteral("Normal"), State::Normal},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> workingRows = {
    {QStringLiteral("Link"), label(makeLink)},
    {QStringLiteral("Long text"), label(setLongText)},
};

} // namespace

PageDescription labelsPage()
{
    return {
        QStringLiteral("labels"),
        QStringLiteral("Labels"),
        {
            {QStringLiteral("Contents"), QStringLiteral("A CLabelEx looks as a QLabel does."), table(rows, columns)},
            {QStringLiteral("Working controls"),
             QStringLiteral(
                 "Click, or reach them with Tab and press Space. The status line tells of the pointer, too."),
             workingControls(workingRows)},
            {QStringLiteral("Drag and drop"),
             QStringLiteral("Drag the photos into the frame; the printer is a plain file, and refused."),
             workingControls({{QString(), makeDragAndDrop}})},
        }};
}

} // namespace gallery
