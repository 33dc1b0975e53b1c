#pragma once

#include "include/zelcmnctrl_export.h"

#include <QDialog>
#include <QMessageBox>
#include <QPen>
#include <QPixmap>
#include <QPointer>
#include <QString>

#include <array>

class CButtonEx;
class CCheckBoxEx;
class CMessageBoxExPrivate;
class CTitleBar;
class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLinearGradient;
class QVBoxLayout;

/** The buttons that have a text of their own. */
enum CC4_MESSAGEBOXEX_BUTTONS
{
    CC4_MESSAGEBOXEX_NONE = 0,
    CC4_MESSAGEBOXEX_OK = 1,
    CC4_MESSAGEBOXEX_CANCEL = 2,
    CC4_MESSAGEBOXEX_YES = 3,
    CC4_MESSAGEBOXEX_NO = 4,
    CC4_MESSAGEBOXEX_ABORT = 5,
    CC4_MESSAGEBOXEX_RETRY = 6,
    CC4_MESSAGEBOXEX_IGNORE = 7,
    CC4_MESSAGEBOXEX_YESTOALL = 8,
    CC4_MESSAGEBOXEX_NOTOALL = 9
};

/**
 * The message box of the house: a frameless dialog with a title bar of its own, a content area and up to three
 * buttons at its right end.
 *
 * Build it, call the setters that you need, then showDialog(), which runs the box and gives the button that ended it;
 * or information(), which does all of that in one call. A box is built once and shown once. There are two families:
 * boxes of texts (a title line, a description, a help link, a check box), and boxes around a widget of the application.
 *
 * **Buttons** are QMessageBox::StandardButton values. They may be combined with QMessageBox::Default (this button gets
 * the green face and the focus), QMessageBox::Escape (without a default elsewhere, the first button then loses the
 * default role that it has otherwise) and popupButton (a click reports and does not end the box). 0 is no button; with
 * none the box has one Ok button. Values beyond the last standard button, negative ones and gaps are warned of, and the
 * box gets one Ok button where nothing usable is left. Whether a value below is one button is not checked.
 *
 * Ok, Cancel, Yes, No, Abort, Retry, Ignore, YesToAll and NoToAll are labelled by the translator that the application
 * has installed, with the keys "m_tr_OK" and so on; `zelcmnctrl03_en.qm` is installed with the library. Other buttons
 * have no text until setButtonText().
 *
 * **Ways out**: a button, the close button of the title bar, the count-down of setAutoClose(), or close() by the
 * application. The Escape key only reports: an application that wants it to end the box connects
 * signal_EscapePressed() to close() or reject().
 *
 * A box with a parent is modal and casts a soft shadow over a picture of what lies behind it, taken when it is shown.
 * Where the window system gives no such picture it is painted without. A box without a parent has no shadow.
 *
 * A box that is destroyed while showDialog() runs, by a slot or with its parent, ends with QDialog::Rejected and takes
 * its content along. Not by a slot of MessageBox_Moved(), nor before the box is on the screen: Qt goes on with it then.
 */
class ZELCMNCTRL_EXPORT CMessageBoxEx : public QDialog
{
    Q_OBJECT

public:
    /** Flag of a button that reports and leaves the box open. It stays in the specifier that the signals carry. */
    static constexpr int popupButton = 0x800;

    /**
     * A box around a widget.
     *
     * The box takes the widget as its child and shows it; showDialog() gives it back, without a parent. Until then it
     * goes with the box. Null gives an empty box. `noShadow` gives a hard edge in place of the soft shadow.
     */
    CMessageBoxEx(QWidget *parent, const QString &title, QWidget *content, int button0 = QMessageBox::Ok,
                  int button1 = 0, int button2 = 0, bool noShadow = false);
    /** The same with a line of help below the widget, a caption that cannot be clicked. Blank help has no icon. */
    CMessageBoxEx(QWidget *parent, const QString &title, const QString &help, QWidget *content,
                  int button0 = QMessageBox::Ok, int button1 = 0, int button2 = 0, bool noShadow = false);
    /**
     * A box of texts: `title` in the title bar, `subTitle` as the line inside the box, the description below it, and a
     * help link unless `help` is blank.
     */
    CMessageBoxEx(QWidget *parent, const QString &title, const QString &subTitle,
                  const QString &description = QString(), const QString &help = QString(),
                  int button0 = QMessageBox::Ok, int button1 = 0, int button2 = 0, bool noShadow = false);
    /** The same with a check box below the texts if `hasCheckBox`. */
    CMessageBoxEx(QWidget *parent, const QString &title, const QString &subTitle, const QString &description,
                  const QString &help, bool hasCheckBox, const QString &checkBoxText, int button0 = QMessageBox::Ok,
                  int button1 = 0, int button2 = 0, bool noShadow = false);
    ~CMessageBoxEx() override;

    /** Builds a box of texts, shows it and gives its result. */
    static int information(QWidget *parent, const QString &title, const QString &subTitle,
                           const QString &description = QString(), const QString &help = QString(),
                           int button0 = QMessageBox::Ok, int button1 = 0, int button2 = 0);

    /**
     * Shows the box in the middle of the screen of the active window and waits for its end.
     *
     * Gives the specifier of the button that ended it; QDialog::Accepted after the count-down; after a close the
     * result() that the application set, else 0. A box that is destroyed meanwhile gives 0 too, and takes its content
     * along.
     */
    int showDialog();

    /** Labels the first button of this specifier, popup flag included; without such a button nothing happens. */
    void setButtonText(int button, const QString &text);
    /** Enables or disables the first button of this specifier; without such a button nothing happens. */
    void setButtonEnabled(int button, bool enabled);
    /** The buttons of the title bar: 1 minimize, 2 maximize, 4 close. The box begins with close alone. */
    void setDialogFlags(int flags);
    /** QDialog::setModal. A box that is made non-modal loses the room of its shadow, for good. */
    void setModal(bool modal);
    /**
     * Hides the row of buttons and takes its clicks away, or brings both back; then the box sizes itself anew. A box of
     * texts cannot be resized by the mouse from then on.
     */
    void setNoButton(bool noButton);

    /** Checks or unchecks the check box. A change fires signal_CheckBoxStateChanged(). No effect without a check box.
     */
    void setCheckBoxState(bool checked);
    /** Whether the check box is checked; false without one. */
    bool checkState();

    /** Lets the mouse resize the box by its right and bottom edge, between minimumSize() and the work area. */
    void setResizeable(bool resizeable);
    /** What setResizeable() was given last; false before. */
    bool resizeable() const;

    /**
     * Ends the box by itself, one second after the count has come to 0: with `seconds` of 10 after 11 seconds.
     *
     * Call it before showDialog(), which starts the count-down; later calls give a running one a new count. Negative
     * counts are 0. Gives the identity of the timer, 0 before showDialog(). UpdateText() fires every second.
     */
    int setAutoClose(int seconds);

    /** While set, the pointer on the title bar is Qt::SizeAllCursor. */
    void changeCursorShape(bool moveCursor);

    /**
     * A new line inside a box of texts, the one that the constructor calls `subTitle`; the title bar keeps its own. The
     * box sizes itself anew and cannot be resized by the mouse from then on. A label never becomes lower than its first
     * text has made it. In a box around a widget there is no such line, and no effect.
     */
    void updateTitle(const QString &title);
    /** A new description, likewise: for instance the seconds that are left, at each UpdateText(). */
    void updateDescription(const QString &description);

    /** What a box of texts wants: 440 pixels wide with three buttons, else 390, and more where its texts need it. */
    QSize sizeHint() const override;

public Q_SLOTS:
    /** Emits signal_MesssageBoxClosed(), and does not close anything. */
    void slot_close();

Q_SIGNALS:
    /** A popup button was clicked, after its Button_Hit(): the button's text. */
    void Popup_Notify(QString text);
    /** A button was clicked: its specifier. Fires before the box ends. */
    void Button_Hit(int button);
    /** The box has come to another place, by the application, by the mouse or by being shown. */
    void MessageBox_Moved();
    /** Every second of a count-down: the moment for updateTitle() or updateDescription(). */
    void UpdateText();
    /** The close button of the title bar was clicked, after signal_CloseEvent(). */
    void signal_MesssageBoxClosed();
    /** The help link of a box of texts was clicked; the box stays. Never fires from a box around a widget. */
    void signal_HelpLinkClicked();
    /** The check box was changed, by the user or by setCheckBoxState(): a Qt::CheckState. */
    void signal_CheckBoxStateChanged(int state);
    /** The Escape key was pressed; the box stays until the application answers. */
    void signal_EscapePressed();
    /** The box was closed, by its close button, its count-down or the application; not when a button ended it. */
    void signal_CloseEvent();

protected:
    /** What a box around a widget wants, from the widget's own size hint. */
    QSize sizeHintContent() const;

    void timerEvent(QTimerEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    void d_zel_func_CMessageBoxEx(CMessageBoxExPrivate **out);

private Q_SLOTS:
    void buttonClicked();
    void slot_OnHelpLinkClicked();
    void slot_OnCheckBoxStateChanged(int state);

private:
    Q_DISABLE_COPY(CMessageBoxEx)

    struct Texts
    {
        QString title;
        QString subTitle;
        QString description;
        QString help;
    };

    /** A box with its frame, title bar and buttons, and nothing in it yet. */
    CMessageBoxEx(QWidget *parent, const Texts &texts, QWidget *content, bool noShadow);

    // Construction.
    void setupUi(QDialog *dialog);
    void setupTitleBar();
    void setupButtonRow(QDialog *dialog);
    void addTexts(int stretchBelowTitle, int stretchBelowDescription);
    void addHelpLink();
    void addCheckBox(const QString &text);
    void addContent();
    void addHelpCaption();
    void describeToAssistiveTechnology();
    static void setLabelProperty(QLabel *label, const QFont &font, Qt::Alignment alignment, bool wordWrap,
                                 const QString &text, const QString &colourKey);

    // Buttons.
    void setButtonTexts();
    void initialize(int button0, int button1, int button2);
    void readSpecifiers();
    int checkedSpecifier(int index) const;
    void fallBackToOk();
    void bindButton(int index);
    CButtonEx *getButton(int index);
    CButtonEx *buttonWithSpecifier(int specifier) const;
    CC4_MESSAGEBOXEX_BUTTONS convertStdButton2Enum(QMessageBox::StandardButton button) const;
    QMessageBox::StandardButton convertEnum2StdButton(CC4_MESSAGEBOXEX_BUTTONS button) const;

    // Size and place.
    int widthFloor() const;
    QSize layoutWish() const;
    void applySize();
    void setMaxSize();
    void growToLayout();
    void moveToCentre();
    QRect getTaskbarRect() const;
    int isTaskbarAutoHideOn() const;

    // Painting.
    void saveBackgroundPixmap();
    void paintShadowedBox(QPainter *painter) const;
    void paintHardEdgedBox(QPainter *painter) const;
    void paintPanel(QPainter *painter) const;
    void paintEndOfTitleBar(QPainter *painter) const;
    QLinearGradient panelGradient() const;

    // Interaction.
    Qt::CursorShape cursorAt(const QPoint &position) const;
    void resizeTo(const QPoint &position, int globalY);
    void endByCountDown();

    std::array<QString, 11> m_buttonTexts;
    CTitleBar *m_pTitleBar = nullptr;
    QPointer<QWidget> m_pContent;
    QPoint m_dragPos;
    bool m_bPressed = false;
    QString m_title;
    QString m_subTitle;
    QString m_description;
    QString m_help;
    int m_numButtons = 0;
    std::array<int, 3> m_buttons{};
    std::array<int, 3> m_popupButtons{-1, -1, -1};
    int m_defaultButton = -1;
    int m_escapeButton = -1;
    std::array<CButtonEx *, 3> m_pButtons{};
    int m_minWidth3;
    int m_minWidth2;
    int m_minWidth1;
    bool m_bNoButton = false;
    int m_autoCloseCount = 0;
    int m_timerId = 0;
    bool m_bAutoClose = false;
    bool m_bNoShadow;
    QVBoxLayout *m_pMainLayout = nullptr;
    QVBoxLayout *m_pTitleLayout = nullptr;
    QVBoxLayout *m_pContentLayout = nullptr;
    QGridLayout *m_pGridLayout = nullptr;
    QFrame *m_pContentFrame = nullptr;
    QHBoxLayout *m_pHelpRow = nullptr;
    QLabel *m_pDescriptionLabel = nullptr;
    QLabel *m_pTitleLabel = nullptr;
    QLabel *m_pHelpLink = nullptr;
    QLabel *m_pHelpIcon = nullptr;
    QVBoxLayout *m_pButtonLayout = nullptr;
    QFrame *m_pButtonFrame = nullptr;
    QHBoxLayout *m_pButtonFrameLayout = nullptr;
    QHBoxLayout *m_pButtonRow = nullptr;
    CButtonEx *m_pLeftButton = nullptr;
    CButtonEx *m_pMiddleButton = nullptr;
    CButtonEx *m_pRightButton = nullptr;
    QPixmap m_background;
    QHBoxLayout *m_pCheckRow = nullptr;
    CCheckBoxEx *m_pCheckBox = nullptr;
    bool m_bHasCheckBox = false;
    QPen m_borderPen;
    QPen m_rightPen;
    QPen m_leftPen;
    CMessageBoxExPrivate *d = nullptr;
};
