#pragma once

#include "include/zelcmnctrl_export.h"

#include <QBasicTimer>
#include <QBrush>
#include <QString>
#include <QWidget>

#include <memory>

/**
 * A busy panel: one line of text over the scrolling rainbow strip, with a shadow around both.
 *
 * It is no QDialog but a QWidget that lies over its window: whichever widget is given as parent, the panel becomes a
 * child of the topmost ancestor. Without a parent it is a window of its own. It counts nothing, takes no focus and is
 * closed by the application, see closeDialog() and setAutoClose().
 *
 * It starts with 388 x 102 pixels and is as wide as its longest label has been. The strip scrolls by one pixel every 10
 * milliseconds from construction to destruction, or until the panel has closed by itself; a tick repaints the strip
 * alone. It runs on the event loop: an application that blocks the GUI thread stops it.
 *
 * Bitmaps (status-*.png) that are missing stay away; the panel paints the rest.
 */
class ZELCMNCTRL_EXPORT CProgressBarDialogEx : public QWidget
{
    Q_OBJECT

public:
    /** A hidden panel with its label, on the window of `parent`; see showDialog(). */
    explicit CProgressBarDialogEx(const QString &label, QWidget *parent = nullptr);
    ~CProgressBarDialogEx() override;

    /** The text that was set last, by the constructor or setLabel(). */
    const QString &label() const { return m_sLabel; }
    /**
     * Sets the text, which stays on one line, and repaints at once. The panel grows where the text and 60 pixels around
     * it need more room, and never shrinks.
     */
    void setLabel(const QString &label);

    /**
     * Closes the panel after so many milliseconds from now, shown or not; a later call replaces an earlier one. Less
     * than 0 counts as 0.
     */
    void setAutoClose(int milliseconds);

    /**
     * Shows the panel in the middle of the screen and returns at once. Modal is Qt::WindowModal and counts for a window
     * of its own.
     *
     * The position is one of the screen, and as a child the panel takes it as one of its window: move it after the call
     * where the window does not fill the screen.
     */
    void showDialog(bool modal);

    /** Emits closed() and hides the panel. A running setAutoClose() goes on, so closed() comes again with its end. */
    void closeDialog();

Q_SIGNALS:
    /** Fires from closeDialog() and at the end of setAutoClose(), each time before the panel hides. */
    void closed();

protected:
    void timerEvent(QTimerEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(CProgressBarDialogEx)

    struct Artwork;

    void hangOnWindow();
    void scroll();
    void endByItself();
    void prepareArtwork();
    void makeStrip();
    QRect stripRect() const;
    void paintFace(QPainter *painter) const;
    void paintStrip(QPainter *painter) const;
    void paintShadows(QPainter *painter) const;

    QString m_sLabel;
    QBasicTimer m_animationTimer;
    QBasicTimer m_closeTimer;
    QBrush m_faceBrush; // as wide as the panel was at its construction
    std::unique_ptr<Artwork> m_pArtwork;
};
