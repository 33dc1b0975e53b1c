#pragma once

#include "SampleTexts.h"

#include <QString>

#include <memory>

class CMessageBoxEx;
class QWidget;

namespace gallery {

enum class BoxForm
{
    OneButton,
    ThreeButtons,
    HelpLink,
    CheckBox,
    Content,
    ContentWithHelp,
    ContentWithoutButtons,
    PopupButton,
    CountDown,
    SilentCountDown,
    Resizeable,
    LongTexts
};

enum class BoxEdge
{
    Soft,
    Hard
};

/** A box of the form, ready for showDialog(). Without a parent it is not modal and has no shadow. */
std::unique_ptr<CMessageBoxEx> makeBox(BoxForm form, BoxEdge edge, const SampleTexts &texts, QWidget *parent);

/** The widget that a box of such a form is made around; null in others. After showDialog() it is the caller's. */
QWidget *contentOf(const CMessageBoxEx *box);

} // namespace gallery
