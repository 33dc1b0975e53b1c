#pragma once

#include <QAccessibleWidget>
#include <QPointer>

class CDSliderEx;

/**
 * What assistive technology learns of a CDSliderEx: a slider with the range of the track and the value of the active
 * handle, which tells both values in its text and its description, and has a child for each handle.
 */
class DSliderExAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    /** From here on every CDSliderEx is announced so. Any further call does nothing. */
    static void install(CDSliderEx *slider);

    explicit DSliderExAccessible(CDSliderEx *slider);
    ~DSliderExAccessible() override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text text) const override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    Q_DISABLE_COPY(DSliderExAccessible)

    CDSliderEx *slider() const;

    mutable QAccessible::Id m_handles[2] = {0, 0}; // made when they are asked for; Qt's cache owns them
};

/** One handle of it. Its range is what the user may reach without coming too near to the other handle. */
class DSliderExHandleAccessible : public QAccessibleInterface, public QAccessibleValueInterface
{
public:
    DSliderExHandleAccessible(CDSliderEx *slider, int handlenumber);

    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface *parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Slider; }
    QAccessible::State state() const override;

    QVariant currentValue() const override;
    /** Moves the handle as far as its range allows, and emits what a key emits. */
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    int boundToTrack(qint64 value) const;

    QPointer<CDSliderEx> m_slider;
    int m_handle;
};
