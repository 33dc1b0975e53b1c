#include "MessageBoxEx/MessageBoxEx.h"

#include "ButtonEx/ButtonEx.h"
#include "CheckBoxEx/CheckBoxEx.h"
#include "LabelEx/LabelEx.h"
#include "MessageBoxEx/MessageBoxEx_p.h"
#include "MessageBoxEx/TitleBar/TitleBar.h"
#include "UiGraphics.h"
#include "include/qt_compat.h"
#include "include/qt_globals.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

namespace {

constexpr int titleBarHeight = 30;
constexpr int gridSpacing = 6;
constexpr QSize smallestButtonFrame(16, 55);
constexpr int buttonFrameMargin = 10;
constexpr int buttonSpacing = 10;
constexpr QSize smallestButton(83, 27);
constexpr QSize smallestHelpLink(0, 25);
constexpr int helpSpacing = 6;
constexpr int spacingWithCheckBox = 16;

constexpr QMargins shadowRoom(0, 0, 14, 10);
// A box that is not modal has no shadow: its panel reaches over the edges on all sides but the top.
constexpr QMargins roomOfNonModalBox(-2, 0, -2, -2);

constexpr int titleFontPixels = 16;
constexpr int descriptionFontPixels = 12;
constexpr int helpFontPixels = 14;

constexpr int autoCloseInterval = 1000; // milliseconds

const QString helpIcon = QStringLiteral("Help.png");
const QString titleColor = QStringLiteral("UIGCLR_TEXT_TITLE");
const QString descriptionColor = QStringLiteral("UIGCLR_TEXT_DEFAULT");
const QString helpColor = QStringLiteral("UIGCLR_MESSAGEBOXEX_HELP");

void setTextColor(QWidget *widget, const QString &colorKey)
{
    QPalette palette = widget->palette();
    palette.setBrush(QPalette::WindowText, UIGGetColor(colorKey));
    widget->setPalette(palette);
}

bool isBlank(const QString &text)
{
    return text.trimmed().isEmpty();
}

// The icon stands beside the first line of a text at the top, and beside the last one of a text at the bottom.
QHBoxLayout *makeHelpRow(QLabel *icon, QLabel *text, Qt::Alignment alignment)
{
    // As high as a line of this text, so that the picture stands in its middle. Letters that another font lends, as
    // those of Chinese, make a line higher than the font says.
    icon->setMinimumHeight(text->fontMetrics().boundingRect(text->text()).height());
    icon->setAlignment(Qt::AlignCenter);
    auto *row = new QHBoxLayout;
    row->setSpacing(helpSpacing);
    row->addWidget(icon, 0, alignment);
    row->addWidget(text);
    row->addStretch(0);
    return row;
}

} // namespace

CMessageBoxEx::CMessageBoxEx(QWidget *parent, const QString &title, QWidget *content, int button0, int button1,
                             int button2, bool noShadow)
    : CMessageBoxEx(parent, Texts{title, QString(), QString(), QString()}, content, noShadow)
{
    ZEL_LOG_SCOPE;
    if (content != nullptr)
        content->setParent(this);
    initialize(button0, button1, button2);
    addContent();
    setMinimumSize(sizeHintContent());
    setMaxSize();
}

CMessageBoxEx::CMessageBoxEx(QWidget *parent, const QString &title, const QString &help, QWidget *content, int button0,
                             int button1, int button2, bool noShadow)
    : CMessageBoxEx(parent, Texts{title, QString(), QString(), help}, content, noShadow)
{
    ZEL_LOG_SCOPE;
    initialize(button0, button1, button2);
    addContent();
    addHelpCaption();
    setFixedSize(sizeHintContent());
    setMaxSize();
}

CMessageBoxEx::CMessageBoxEx(QWidget *parent, const QString &title, const QString &subTitle, const QString &description,
                             const QString &help, int button0, int button1, int button2, bool noShadow)
    : CMessageBoxEx(parent, Texts{title, subTitle, description, help}, nullptr, noShadow)
{
    ZEL_LOG_SCOPE;
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
    initialize(button0, button1, button2);
    addTexts(0, 1);
    addHelpLink();
    setFixedSize(sizeHint());
    setMaxSize();
}

CMessageBoxEx::CMessageBoxEx(QWidget *parent, const QString &title, const QString &subTitle, const QString &description,
                             const QString &help, bool hasCheckBox, const QString &checkBoxText, int button0,
                             int button1, int button2, bool noShadow)
    : CMessageBoxEx(parent, Texts{title, subTitle, description, help}, nullptr, noShadow)
{
    ZEL_LOG_SCOPE;
    m_bHasCheckBox = hasCheckBox;
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
    initialize(button0, button1, button2);
    addTexts(1, 2);
    m_pContentLayout->setSpacing(spacingWithCheckBox);
    addHelpLink();
    if (hasCheckBox)
        addCheckBox(checkBoxText);
    setFixedSize(sizeHint());
    setMaxSize();
}

CMessageBoxEx::CMessageBoxEx(QWidget *parent, const Texts &texts, QWidget *content, bool noShadow)
    : QDialog(parent),
      m_pContent(content),
      m_title(texts.title),
      m_subTitle(texts.subTitle),
      m_description(texts.description),
      m_help(texts.help),
      m_bNoShadow(noShadow)
{
    setupUi(this);
    d = new CMessageBoxExPrivate;
    d->init();
    setModal(parent != nullptr);
    setButtonTexts();
    setWindowTitle(m_title); // names the dialog, in task bars and for assistive technology
}

CMessageBoxEx::~CMessageBoxEx()
{
    ZEL_LOG_SCOPE;
    QObject *const parts[] = {
        m_pTitleBar,          m_pDescriptionLabel, m_pTitleLabel,    m_pHelpLink,    m_pHelpIcon,     m_pLeftButton,
        m_pMiddleButton,      m_pRightButton,      m_pCheckBox,      m_pHelpRow,     m_pButtonRow,    m_pCheckRow,
        m_pButtonFrameLayout, m_pButtonFrame,      m_pContentLayout, m_pTitleLayout, m_pButtonLayout, m_pMainLayout};
    // Slots of the application hear of each end, and may still call the box.
    m_pTitleLabel = nullptr;
    m_pDescriptionLabel = nullptr;
    m_pCheckBox = nullptr;
    m_pLeftButton = m_pMiddleButton = m_pRightButton = nullptr;
    try {
        for (QObject *part : parts)
            delete part;
    } catch (...) {
        zel::logException(QStringLiteral("CMessageBoxEx::~CMessageBoxEx"));
    }
    delete d;
}

int CMessageBoxEx::information(QWidget *parent, const QString &title, const QString &subTitle,
                               const QString &description, const QString &help, int button0, int button1, int button2)
{
    ZEL_LOG_SCOPE;
    CMessageBoxEx box(parent, title, subTitle, description, help, button0, button1, button2);
    return box.showDialog();
}

int CMessageBoxEx::showDialog()
{
    ZEL_LOG_SCOPE;
    const QPointer<CMessageBoxEx> self(this); // who hears of what happens meanwhile may destroy the box
    if (m_bAutoClose)
        m_timerId = startTimer(autoCloseInterval);
    growToLayout();
    moveToCentre();
    saveBackgroundPixmap();
    show();
    if (self.isNull())
        return QDialog::Rejected;
    activateWindow(); // not every window manager gives a splash screen the keyboard
    ZEL_LOG(zel::LogDetail, zel::CommonControls,
            QStringLiteral("CMessageBoxEx::showDialog <%1 x %2>").arg(width()).arg(height()));
    // Qt lets events in while it shows a splash screen, and the box may be over by now.
    const int result = isVisible() ? QDialog::exec() : QDialog::result();
    if (self.isNull())
        return QDialog::Rejected;
    if (!m_pContent.isNull()) {
        m_pContentLayout->removeWidget(m_pContent);
        m_pContent->setParent(nullptr);
    }
    return result;
}

void CMessageBoxEx::setModal(bool modal)
{
    ZEL_LOG_SCOPE;
    if (!modal)
        setContentsMargins(roomOfNonModalBox);
    QDialog::setModal(modal);
}

void CMessageBoxEx::setDialogFlags(int flags)
{
    ZEL_LOG_SCOPE;
    m_pTitleBar->setTitleFlags(flags);
}

void CMessageBoxEx::setCheckBoxState(bool checked)
{
    ZEL_LOG_SCOPE;
    if (m_pCheckBox != nullptr)
        m_pCheckBox->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

bool CMessageBoxEx::checkState()
{
    ZEL_LOG_SCOPE;
    return m_pCheckBox != nullptr && m_pCheckBox->checkState() == Qt::Checked;
}

void CMessageBoxEx::d_zel_func_CMessageBoxEx(CMessageBoxExPrivate **out)
{
    *out = d;
}

void CMessageBoxEx::setupUi(QDialog *dialog)
{
    ZEL_LOG_SCOPE;
    m_pMainLayout = new QVBoxLayout(dialog);
    m_pMainLayout->setSpacing(0);
    m_pMainLayout->setContentsMargins(0, 0, 0, 0);
    setupTitleBar();

    m_pGridLayout = new QGridLayout;
    m_pGridLayout->setSpacing(gridSpacing);
    m_pContentFrame = new QFrame(dialog);
    m_pContentFrame->setFrameShape(QFrame::NoFrame);
    m_pContentFrame->setFrameShadow(QFrame::Plain);
    m_pGridLayout->addWidget(m_pContentFrame, 0, 0, 1, 1);
    m_pMainLayout->addLayout(m_pGridLayout);

    setupButtonRow(dialog);
    // Where screens may have notches Qt takes no margin below 0, which a box that is not modal has.
    dialog->setAttribute(Qt::WA_ContentsMarginsRespectsSafeArea, false);
    dialog->setContentsMargins(m_bNoShadow ? QMargins() : shadowRoom);
    dialog->setWindowFlags(Qt::SplashScreen); // what makes it frameless
    dialog->setMouseTracking(true);
    for (QWidget *inside : {static_cast<QWidget *>(m_pTitleBar), static_cast<QWidget *>(m_pContentFrame),
                            static_cast<QWidget *>(m_pButtonFrame)})
        inside->installEventFilter(this);
}

void CMessageBoxEx::setupTitleBar()
{
    m_pTitleBar = new CTitleBar(this);
    m_pTitleBar->setMaximumHeight(titleBarHeight);
    m_pTitleBar->setCaption(m_title);
    m_pTitleBar->setTitleFlags(CTitleBar::CloseButton);
    m_pTitleBar->setDropShadow(!m_bNoShadow);
    m_pTitleLayout = new QVBoxLayout;
    m_pTitleLayout->addWidget(m_pTitleBar);
    m_pMainLayout->addLayout(m_pTitleLayout);
}

void CMessageBoxEx::setupButtonRow(QDialog *dialog)
{
    m_pButtonLayout = new QVBoxLayout;
    m_pButtonFrame = new QFrame(dialog);
    m_pButtonFrame->setMinimumSize(smallestButtonFrame);
    m_pButtonFrame->setLineWidth(0);
    m_pButtonFrameLayout = new QHBoxLayout(m_pButtonFrame);
    m_pButtonFrameLayout->setContentsMargins(buttonFrameMargin, buttonFrameMargin, buttonFrameMargin,
                                             buttonFrameMargin);
    m_pButtonRow = new QHBoxLayout;
    m_pButtonRow->setSpacing(buttonSpacing);
    m_pButtonRow->addStretch(0);
    for (CButtonEx **button : {&m_pLeftButton, &m_pMiddleButton, &m_pRightButton}) {
        *button = new CButtonEx(m_pButtonFrame);
        (*button)->setMinimumSize(smallestButton);
        m_pButtonRow->addWidget(*button);
    }
    m_pButtonFrameLayout->addLayout(m_pButtonRow);
    m_pButtonLayout->addWidget(m_pButtonFrame);
    m_pMainLayout->addLayout(m_pButtonLayout);
}

void CMessageBoxEx::addTexts(int stretchBelowTitle, int stretchBelowDescription)
{
    m_pTitleLabel = new QLabel;
    setLabelProperty(m_pTitleLabel, UIGGetFont(titleFontPixels, -1, false), Qt::AlignLeft, true, m_subTitle.trimmed(),
                     titleColor);
    m_pDescriptionLabel = new QLabel;
    setLabelProperty(m_pDescriptionLabel, UIGGetFont(descriptionFontPixels, -1, false), Qt::AlignLeft, true,
                     m_description, descriptionColor);
    m_pContentLayout = new QVBoxLayout(m_pContentFrame);
    m_pContentLayout->addWidget(m_pTitleLabel);
    m_pContentLayout->addStretch(stretchBelowTitle);
    m_pContentLayout->addWidget(m_pDescriptionLabel);
    m_pContentLayout->addStretch(stretchBelowDescription);
    describeToAssistiveTechnology();
}

void CMessageBoxEx::addHelpLink()
{
    if (isBlank(m_help))
        return;
    m_pHelpIcon = new QLabel;
    m_pHelpIcon->setPixmap(UIGGetPixmap(helpIcon, devicePixelRatioF()));
    auto *link = new CLabelEx(m_pContentFrame);
    link->setMinimumSize(smallestHelpLink);
    QFont font = UIGGetFont(helpFontPixels, -1, false);
    font.setUnderline(true);
    setLabelProperty(link, font, Qt::AlignLeft, true, m_help, helpColor);
    link->setCursor(Qt::PointingHandCursor);
    connect(link, &CLabelEx::clicked, this, &CMessageBoxEx::slot_OnHelpLinkClicked);
    m_pHelpLink = link;
    m_pHelpRow = makeHelpRow(m_pHelpIcon, m_pHelpLink, Qt::AlignTop);
    m_pContentLayout->addLayout(m_pHelpRow);
}

void CMessageBoxEx::addCheckBox(const QString &text)
{
    m_pCheckBox = new CCheckBoxEx(text, m_pContentFrame);
    m_pCheckBox->setFont(UIGGetFont(descriptionFontPixels, -1, false));
    setTextColor(m_pCheckBox, titleColor);
    connect(m_pCheckBox, &QCheckBox::stateChanged, this, &CMessageBoxEx::slot_OnCheckBoxStateChanged);
    m_pCheckRow = new QHBoxLayout;
    m_pCheckRow->addWidget(m_pCheckBox);
    m_pCheckRow->addStretch(0);
    m_pContentLayout->addStretch(1);
    m_pContentLayout->addLayout(m_pCheckRow);
}

void CMessageBoxEx::addContent()
{
    m_pContentLayout = new QVBoxLayout(m_pContentFrame);
    QSizePolicy policy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    policy.setHeightForWidth(sizePolicy().hasHeightForWidth());
    setSizePolicy(policy);
    if (m_pContent.isNull())
        return;
    setTextColor(m_pContent, titleColor);
    m_pContentLayout->addWidget(m_pContent);
    m_pContent->show();
}

// Always there, in this form, even with nothing to say.
void CMessageBoxEx::addHelpCaption()
{
    const bool saysSomething = !isBlank(m_help);
    QFont font = UIGGetFont(helpFontPixels, -1, false);
    font.setUnderline(saysSomething);
    m_pHelpIcon = new QLabel(m_pContentFrame);
    if (saysSomething)
        m_pHelpIcon->setPixmap(UIGGetPixmap(helpIcon, devicePixelRatioF()));
    m_pHelpLink = new QLabel(m_pContentFrame);
    m_pHelpLink->setMinimumSize(smallestHelpLink);
    setLabelProperty(m_pHelpLink, font, Qt::AlignLeft | Qt::AlignBottom, true, m_help, helpColor);
    m_pHelpRow = makeHelpRow(m_pHelpIcon, m_pHelpLink, Qt::AlignBottom);
    m_pContentLayout->addStretch(1);
    m_pContentLayout->addLayout(m_pHelpRow);
}

void CMessageBoxEx::setLabelProperty(QLabel *label, const QFont &font, Qt::Alignment alignment, bool wordWrap,
                                     const QString &text, const QString &colourKey)
{
    label->setFont(font);
    label->setAlignment(alignment);
    label->setWordWrap(wordWrap);
    label->setText(text);
    label->setMinimumHeight(label->sizeHint().height());
    setTextColor(label, colourKey);
}

void CMessageBoxEx::describeToAssistiveTechnology()
{
    QStringList lines;
    for (const QLabel *label : {m_pTitleLabel, m_pDescriptionLabel})
        if (label != nullptr && !label->text().isEmpty())
            lines.append(label->text());
    setAccessibleDescription(lines.join(QLatin1Char('\n')));
}
