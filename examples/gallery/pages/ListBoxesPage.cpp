#include "Pages.h"

#include "MakerTools.h"
#include "StillStyle.h"

#include <ZelCmnCtrl03/CListBoxEx>

namespace gallery {

namespace {

constexpr QSize boxSize(300, 290); // three rows and a bit
constexpr int rowHeight = 92;      // that the list box counts on
constexpr int manyRows = 60;

/** What is in the rows. */
struct Content
{
    const char *pictures[3]; // names of sample images
    int count;
    bool hasRowHeight; // given by the application
};

// As high as the style's icon size, which makes rows of 92.
constexpr Content photos = {{"hills-90", "sea-90", "flower-90"}, 3, false};
constexpr Content manyPhotos = {{"hills-90", "sea-90", "flower-90"}, manyRows, false};
constexpr Content smallPictures = {{"photos-48", "printer-48", "missing"}, 3, false};
constexpr Content smallPicturesInRows = {{"photos-48", "printer-48", "missing"}, 3, true};

void addRows(CListBoxEx *box, const Content &content, const SampleTexts &texts)
{
    const QString captions[] = {texts.photos, texts.printAll, texts.showDetails};
    for (int i = 0; i < content.count; ++i) {
        const QLatin1String name(content.pictures[i % 3]);
        box->addRow(QStringLiteral(":/gallery/%1.png").arg(name), captions[i % 3]);
        if (content.hasRowHeight)
            box->item(i)->setSizeHint(QSize(0, rowHeight)); // rows are as wide as the list anyway
    }
}

Maker listBox(const Content &content, QAbstractItemView::SelectionMode mode = QAbstractItemView::SingleSelection)
{
    return [content, mode](State state, const MakerSettings &settings, QWidget *parent) {
        auto *box = new CListBoxEx(parent);
        box->setWordWrap(true);
        box->setSelectionMode(mode);
        addRows(box, content, settings.texts);
        box->setCurrentRow(0);
        if (mode != QAbstractItemView::SingleSelection)
            box->selectAll();
        if (state == State::Disabled)
            box->setEnabled(false);
        applyForeignStyle(box, settings);
        // The gradient is for the list that has the focus.
        if (state == State::Focused)
            new StillStyle(box, QStyle::State_Active); // belongs to the box
        box->resize(boxSize);
        QObject::connect(
            box, &QListWidget::currentTextChanged, box,
            [report = settings.report](const QString &text) { report(QStringLiteral("now \"%1\"").arg(text)); });
        return box;
    };
}

const std::vector<Column> states = {
    {QStringLiteral("With the focus"), State::Focused},
    {QStringLiteral("Without"), State::Normal},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> stateRows = {
    {QStringLiteral("Pictures 90 high"), listBox(photos)},
    {QStringLiteral("All selected"), listBox(photos, QAbstractItemView::ExtendedSelection)},
    {QStringLiteral("Smaller and missing pictures"), listBox(smallPictures)},
    {QStringLiteral("The same, rows set to 92"), listBox(smallPicturesInRows)},
};

const std::vector<Row> workingRows = {
    {QStringLiteral("One of a few"), listBox(photos)},
    {QStringLiteral("Any of many"), listBox(manyPhotos, QAbstractItemView::ExtendedSelection)},
    {QStringLiteral("Rows set to 92"), listBox(smallPicturesInRows)},
};

} // namespace

PageDescription listBoxesPage()
{
    return {QStringLiteral("list-boxes"),
            QStringLiteral("List boxes"),
            {
                {QStringLiteral("States"),
                 QStringLiteral("Each selected row has the same shading. A row is as high as its picture makes it; an "
                                "application with smaller pictures sets the size hint of its items."),
                 table(stateRows, states)},
                {QStringLiteral("Working controls"), QStringLiteral("The gradient is where the focus is."),
                 workingControls(workingRows)},
            }};
}

} // namespace gallery
