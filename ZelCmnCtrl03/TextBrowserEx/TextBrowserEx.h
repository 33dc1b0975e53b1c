#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QTextBrowser>
#include <QUrl>

/**
 * The text browser of the house: a QTextBrowser that shows one document for good. A link only emits anchorClicked();
 * where it leads is the application's business.
 *
 * The mouse shows a hand over links, and dragging it selects nothing; highlighted() never fires. The wheel does not
 * scroll, the keyboard and the scroll bars do. With Ctrl alone held down the wheel is left to the parent, for a zoom
 * for instance.
 */
class ZELCMNCTRL_EXPORT CTextBrowserEx : public QTextBrowser
{
    Q_OBJECT

public:
    /** A browser without a document. */
    explicit CTextBrowserEx(QWidget *parent = nullptr);
    ~CTextBrowserEx() override;

public Q_SLOTS:
    /** Does nothing: set the document with setHtml() or setText(). */
    void setSource(const QUrl &name) ZEL_OVERRIDE_ON_QT5;

protected:
    void doSetSource(const QUrl &name, QTextDocument::ResourceType type) ZEL_OVERRIDE_ON_QT6;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(CTextBrowserEx)

    void showHand(bool on);

    bool m_bHandShown = false;
};
