#pragma once

#include "include/qt_compat.h"

#include <QCursor>
#include <QPixmap>
#include <QWidget>

class QPainter;

/**
 * A button of the title bar of message boxes. It looks and clicks as a CTitleButton does, keeps its own picture, and
 * shows an arrow for a pointer whatever the bar around it shows.
 */
class CCustomIconButtons : public QWidget
{
    Q_OBJECT

public:
    explicit CCustomIconButtons(QWidget *parent);
    ~CCustomIconButtons() override;

    /** Sets the icon, drawn in its own size at (3, 3); null for none. Shows with the next repaint. */
    void AddIcons(QPixmap pixmap);
    void DrawIcons(QPainter *painter);

Q_SIGNALS:
    /** Fires with each release of the left mouse button that it gets, after a press wherever the pointer went. */
    void customClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(CCustomIconButtons)

    QPixmap m_icon;
    int m_iState = 0; // of IconButtonPainting::State
    QCursor m_savedCursor;
};
