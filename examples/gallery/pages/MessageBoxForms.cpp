#include "MessageBoxForms.h"

#include <ZelCmnCtrl03/CMessageBoxEx>

#include <QComboBox>
#include <QFormLayout>
#include <QSpinBox>

namespace gallery {

namespace {

constexpr int yesOrNo = QMessageBox::Yes | QMessageBox::Default;
constexpr int optionsButton = QMessageBox::Apply | CMessageBoxEx::popupButton;
constexpr int allTitleButtons = 7;
constexpr int countDownSeconds = 5;
constexpr char orderName[] = "order";

QWidget *makeOrder(const OrderTexts &texts)
{
    auto *order = new QWidget;
    order->setObjectName(QLatin1String(orderName));
    auto *form = new QFormLayout(order);
    form->setContentsMargins(0, 0, 0, 0);
    auto *copies = new QSpinBox;
    copies->setRange(1, 99);
    copies->setValue(12);
    form->addRow(texts.copies, copies);
    auto *paper = new QComboBox;
    paper->addItems({texts.glossy, texts.matte});
    form->addRow(texts.paper, paper);
    return order;
}

/** What all forms are made of. */
struct BoxMaker
{
    const SampleTexts &texts;
    QWidget *parent;
    bool isHard;

    std::unique_ptr<CMessageBoxEx> withTexts(const QString &help, int button0, int button1 = 0, int button2 = 0) const
    {
        return std::make_unique<CMessageBoxEx>(parent, texts.print, texts.printAll, texts.order.tip, help, button0,
                                               button1, button2, isHard);
    }
    std::unique_ptr<CMessageBoxEx> withCheckBox() const
    {
        return std::make_unique<CMessageBoxEx>(parent, texts.print, texts.printAll, texts.order.tip, texts.showDetails,
                                               true, texts.order.inShop, yesOrNo, QMessageBox::No, 0, isHard);
    }
    std::unique_ptr<CMessageBoxEx> withContent() const
    {
        return std::make_unique<CMessageBoxEx>(parent, texts.print, makeOrder(texts.order), QMessageBox::Ok,
                                               QMessageBox::Cancel, 0, isHard);
    }
    std::unique_ptr<CMessageBoxEx> withContentAndHelp() const
    {
        return std::make_unique<CMessageBoxEx>(parent, texts.print, texts.showDetails, makeOrder(texts.order),
                                               QMessageBox::Ok, QMessageBox::Cancel, 0, isHard);
    }
    std::unique_ptr<CMessageBoxEx> withoutButtons() const
    {
        auto box = withContent();
        box->setNoButton(true);
        return box;
    }
    std::unique_ptr<CMessageBoxEx> withPopupButton() const
    {
        auto box = withTexts(QString(), QMessageBox::Ok | QMessageBox::Default, QMessageBox::Cancel, optionsButton);
        box->setButtonText(optionsButton, texts.order.options);
        return box;
    }
    std::unique_ptr<CMessageBoxEx> withCountDown() const
    {
        auto box = withTexts(QString(), QMessageBox::Cancel);
        box->setAutoClose(countDownSeconds);
        return box;
    }
    std::unique_ptr<CMessageBoxEx> withShownCountDown() const
    {
        auto box = withCountDown();
        QObject::connect(box.get(), &CMessageBoxEx::UpdateText, box.get(),
                         [box = box.get(), left = countDownSeconds, text = texts.order.tip]() mutable {
                             box->updateDescription(QStringLiteral("%1 (%2)").arg(text).arg(qMax(left--, 0)));
                         });
        return box;
    }
    std::unique_ptr<CMessageBoxEx> resizeable() const
    {
        auto box = withTexts(QString(), QMessageBox::Ok);
        box->setResizeable(true);
        box->setDialogFlags(allTitleButtons);
        return box;
    }
    std::unique_ptr<CMessageBoxEx> withLongTexts() const
    {
        auto box = std::make_unique<CMessageBoxEx>(parent, texts.printAll, texts.order.tip,
                                                   texts.order.tip + QLatin1Char(' ') + texts.order.tip, QString(),
                                                   yesOrNo, QMessageBox::No, QMessageBox::Cancel, isHard);
        box->setButtonText(QMessageBox::Yes, texts.printAll);
        return box;
    }
};

} // namespace

std::unique_ptr<CMessageBoxEx> makeBox(BoxForm form, BoxEdge edge, const SampleTexts &texts, QWidget *parent)
{
    const BoxMaker maker{texts, parent, edge == BoxEdge::Hard};
    switch (form) {
    case BoxForm::OneButton: return maker.withTexts(QString(), QMessageBox::Ok);
    case BoxForm::ThreeButtons:
        return maker.withTexts(QString(), yesOrNo, QMessageBox::No, QMessageBox::Cancel | QMessageBox::Escape);
    case BoxForm::HelpLink: return maker.withTexts(texts.showDetails, QMessageBox::Retry, QMessageBox::Abort);
    case BoxForm::CheckBox: return maker.withCheckBox();
    case BoxForm::Content: return maker.withContent();
    case BoxForm::ContentWithHelp: return maker.withContentAndHelp();
    case BoxForm::ContentWithoutButtons: return maker.withoutButtons();
    case BoxForm::PopupButton: return maker.withPopupButton();
    case BoxForm::CountDown: return maker.withShownCountDown();
    case BoxForm::SilentCountDown: return maker.withCountDown();
    case BoxForm::Resizeable: return maker.resizeable();
    case BoxForm::LongTexts: return maker.withLongTexts();
    }
    return nullptr;
}

QWidget *contentOf(const CMessageBoxEx *box)
{
    return box->findChild<QWidget *>(QLatin1String(orderName));
}

} // namespace gallery
