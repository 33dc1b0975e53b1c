#pragma once

#include <QPixmap>
#include <QWidget>

namespace gallery {

/** A pixmap and nothing else; unlike a QLabel it does not grey the picture while it is disabled. */
class Picture : public QWidget
{
    Q_OBJECT

public:
    Picture(const QPixmap &pixmap, QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_pixmap;
};

/** The blue of a photo application's tool tray, for looks with white text. */
class TrayPanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace gallery
