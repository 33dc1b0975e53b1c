// Controls of ours beside what Qt has for the same purpose, under Fusion.
#include "Groups.h"
#include "WidgetKinds.h"

#include <ButtonEx/ButtonEx.h>
#include <DropDownEx/DropDownEx.h>
#include <MessageBoxEx/MessageBoxEx.h>
#include <SliderEx/DSliderEx.h>
#include <SliderEx/SliderEx.h>
#include <TextBoxEx/TextBoxEx.h>

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QStyleFactory>

namespace {

const QString group = QStringLiteral("controls beside those of Qt");
const QString ourName = QStringLiteral("ours");
const QString peerName = QStringLiteral("Fusion");

QStyle &fusion()
{
    static QStyle *const style = QStyleFactory::create(QStringLiteral("Fusion"));
    return *style;
}

Contender paintingOf(const QString &name, const std::shared_ptr<QWidget> &widget, const QSize &size)
{
    const auto canvas = std::make_shared<Canvas>(size);
    widget->resize(size);
    widget->ensurePolished();
    canvas->paint(*widget);
    return {name, [widget, canvas] { canvas->paint(*widget); }, {}};
}

/** Both are prepared by the same function, so that they show the same. */
template <typename Ours, typename Peer, typename Arrange>
Comparison paintingBeside(const QSize &size, Arrange arrange)
{
    const QString names = QLatin1String(Ours::staticMetaObject.className()) + QStringLiteral(", ") +
                          QLatin1String(Peer::staticMetaObject.className());
    Comparison comparison{group, names, nanoseconds, {}, {}};
    comparison.makeContenders = [size, arrange] {
        const auto ours = std::make_shared<Ours>();
        const auto peer = std::make_shared<Peer>();
        arrange(*ours);
        arrange(*peer);
        dress(*peer, fusion(), size);
        return std::vector<Contender>{paintingOf(ourName, ours, size), paintingOf(peerName, peer, size)};
    };
    return comparison;
}

/** Closes a dialog after its first painting. */
class CloseWhenPainted : public QObject
{
public:
    explicit CloseWhenPainted(QDialog &dialog) : m_dialog(dialog) { dialog.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(&m_dialog, &QDialog::reject, Qt::QueuedConnection);
        return false;
    }

private:
    QDialog &m_dialog;
};

void showOurs(const QString &title, const QString &message)
{
    CMessageBoxEx box(nullptr, title, QStringLiteral("Paper"), message, QString(), QMessageBox::Ok,
                      QMessageBox::Cancel);
    const CloseWhenPainted closing(box);
    box.showDialog();
}

void showPeer(const QString &title, const QString &message)
{
    QMessageBox box(QMessageBox::Information, title, message, QMessageBox::Ok | QMessageBox::Cancel);
    const CloseWhenPainted closing(box);
    box.setStyle(&fusion());
    const QList<QWidget *> children = box.findChildren<QWidget *>();
    for (QWidget *child : children)
        child->setStyle(&fusion());
    box.exec();
}

Comparison messageBoxes()
{
    const QString title = QStringLiteral("Printing");
    const QString message = QStringLiteral("The paper tray is empty. Put paper in and try again.");
    return {group,
            QStringLiteral("CMessageBoxEx, QMessageBox: opened and closed"),
            nanoseconds,
            {{ourName, [=] { showOurs(title, message); }, {}}, {peerName, [=] { showPeer(title, message); }, {}}},
            {}};
}

} // namespace

std::vector<Comparison> houseControls()
{
    const auto print = [](auto &button) {
        button.setText(QStringLiteral("Print"));
    };
    const auto write = [](auto &field) {
        field.setText(QStringLiteral("Holiday photos"));
    };
    // CDSliderEx is no QSlider, and always lies.
    const auto lay = [](QWidget &widget) {
        if (auto *slider = qobject_cast<QSlider *>(&widget))
            slider->setOrientation(Qt::Horizontal);
    };
    const auto fill = [](auto &box) {
        box.addItem(QStringLiteral("Glossy paper"));
    };
    return {
        paintingBeside<CButtonEx, QPushButton>(QSize(96, 28), print),
        paintingBeside<CTextBoxEx, QLineEdit>(QSize(160, 24), write),
        paintingBeside<CSliderEx, QSlider>(QSize(200, 31), lay),
        paintingBeside<CDSliderEx, QSlider>(QSize(200, 31), lay),
        paintingBeside<CDropDownEx, QComboBox>(QSize(140, 24), fill),
        messageBoxes(),
    };
}
