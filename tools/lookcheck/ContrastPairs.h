// Which text the controls write on which ground, as data.
#pragma once

namespace lookcheck {

/**
 * One text and what is behind it: a colour, a gradient between two, or a bitmap.
 *
 * Texts of disabled controls are not here: what cannot be used need not stand out, and WCAG 2 exempts it.
 */
struct ContrastPair
{
    const char *text;       // null: black, which tool tips have of the platform
    const char *ground;     // null: white, whatever the look says
    const char *groundEnd;  // null: no gradient
    const char16_t *bitmap; // null: the ground is a colour
    const char *where;
    int textAlpha = 255;
};

inline constexpr int pushButtonTextAlpha = 0xC8; // of the white button, as its painter has it

inline constexpr ContrastPair contrastPairs[] = {
    {"UIGCLR_PALETTE_ACTIVE_TEXT", "UIGCLR_PALETTE_ACTIVE_BASE", nullptr, nullptr, "lists and text areas"},
    {"UIGCLR_PALETTE_INACTIVE_TEXT", "UIGCLR_PALETTE_INACTIVE_BASE", nullptr, nullptr,
     "lists and text areas in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_TEXT", "UIGCLR_LE_BACKGROUND", nullptr, nullptr, "text fields"},
    {"UIGCLR_PALETTE_INACTIVE_TEXT", "UIGCLR_LE_BACKGROUND", nullptr, nullptr, "text fields in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_TEXT", nullptr, nullptr, nullptr, "combo boxes"},
    {"UIGCLR_PALETTE_INACTIVE_TEXT", nullptr, nullptr, nullptr, "combo boxes in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_FOREGROUND", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, nullptr, "labels"},
    {"UIGCLR_PALETTE_INACTIVE_FOREGROUND", "UIGCLR_PALETTE_INACTIVE_BACKGROUND", nullptr, nullptr,
     "labels in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_TEXT", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, nullptr, "titles of group boxes"},
    {"UIGCLR_PALETTE_INACTIVE_TEXT", "UIGCLR_PALETTE_INACTIVE_BACKGROUND", nullptr, nullptr,
     "titles of group boxes in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_BUTTONTEXT", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, nullptr,
     "tool buttons, tertiary and flat buttons"},
    {"UIGCLR_PALETTE_INACTIVE_BUTTONTEXT", "UIGCLR_PALETTE_INACTIVE_BACKGROUND", nullptr, nullptr,
     "tool buttons, tertiary and flat buttons in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_BUTTONTEXT", "UIGCLR_PALETTE_ACTIVE_BUTTON", nullptr, nullptr, "headers of lists"},
    {"UIGCLR_PALETTE_INACTIVE_BUTTONTEXT", "UIGCLR_PALETTE_INACTIVE_BUTTON", nullptr, nullptr,
     "headers of lists in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_BUTTONTEXT", "UIGCLR_CE_HEADER", nullptr, nullptr, "headers that are on"},
    {"UIGCLR_PALETTE_INACTIVE_BUTTONTEXT", "UIGCLR_CE_HEADER", nullptr, nullptr,
     "headers that are on in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_HIGHLIGHTEDTEXT", "UIGCLR_PALETTE_ACTIVE_HIGHLIGHT", nullptr, nullptr, "selected text"},
    {"UIGCLR_PALETTE_INACTIVE_HIGHLIGHTEDTEXT", "UIGCLR_PALETTE_INACTIVE_HIGHLIGHT", nullptr, nullptr,
     "selected text in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_HIGHLIGHTEDTEXT", "UIGCLR_LISTBOXEX_GRAD1", "UIGCLR_LISTBOXEX_GRAD2", nullptr,
     "selected rows of list boxes"},
    {"UIGCLR_PALETTE_ACTIVE_BASE", "UIGCLR_PALETTE_ACTIVE_HIGHLIGHT", nullptr, nullptr,
     "texts of progress bars on what is done"},
    {"UIGCLR_PALETTE_INACTIVE_BASE", "UIGCLR_PALETTE_INACTIVE_HIGHLIGHT", nullptr, nullptr,
     "texts of progress bars on what is done in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_LINK", "UIGCLR_PALETTE_ACTIVE_BASE", nullptr, nullptr, "links in text areas"},
    {"UIGCLR_PALETTE_INACTIVE_LINK", "UIGCLR_PALETTE_INACTIVE_BASE", nullptr, nullptr,
     "links in text areas in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_LINKVISITED", "UIGCLR_PALETTE_ACTIVE_BASE", nullptr, nullptr,
     "visited links in text areas"},
    {"UIGCLR_PALETTE_INACTIVE_LINKVISITED", "UIGCLR_PALETTE_INACTIVE_BASE", nullptr, nullptr,
     "visited links in text areas in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_LINK", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, nullptr, "links"},
    {"UIGCLR_PALETTE_INACTIVE_LINK", "UIGCLR_PALETTE_INACTIVE_BACKGROUND", nullptr, nullptr,
     "links in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_LINKVISITED", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, nullptr, "visited links"},
    {"UIGCLR_PALETTE_INACTIVE_LINKVISITED", "UIGCLR_PALETTE_INACTIVE_BACKGROUND", nullptr, nullptr,
     "visited links in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_TEXT", "UIGCLR_MENU_GRADIENT_TOP", "UIGCLR_MENU_GRADIENT_END", nullptr, "menus"},
    {"UIGCLR_PALETTE_ACTIVE_TEXT", "UIGCLR_MENU_SELECTED_COLOR", nullptr, nullptr, "selected items of menus"},
    {"UIGCLR_PALETTE_ACTIVE_HIGHLIGHT", "UIGCLR_WHITE", nullptr, nullptr, "selected tabs"},
    {"UIGCLR_PALETTE_INACTIVE_HIGHLIGHT", "UIGCLR_WHITE", nullptr, nullptr, "selected tabs in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_HIGHLIGHT", "UIGCLR_PALETTE_ACTIVE_BASE", nullptr, nullptr, "selected triangular tabs"},
    {"UIGCLR_PALETTE_INACTIVE_HIGHLIGHT", "UIGCLR_PALETTE_INACTIVE_BASE", nullptr, nullptr,
     "selected triangular tabs in inactive windows"},
    {"UIGCLR_PALETTE_ACTIVE_FOREGROUND", "UIGCLR_RECTGRAD1", "UIGCLR_RECTGRAD2", nullptr, "tabs"},
    {"UIGCLR_PALETTE_INACTIVE_FOREGROUND", "UIGCLR_RECTGRAD1", "UIGCLR_RECTGRAD2", nullptr, "tabs in inactive windows"},
    {nullptr, "UIGCLR_PE_PANELTIPLABEL_GRAD1", "UIGCLR_PE_PANELTIPLABEL_GRAD2", nullptr, "tool tips"},
    {"UIGCLR_IMPUI_GRAYTITLE", "UIGCLR_LE_BACKGROUND", nullptr, nullptr,
     "text boxes, and spin boxes in inactive windows"},
    {"UIGCLR_IMPUI_BLUTITLE", "UIGCLR_LE_BACKGROUND", nullptr, nullptr, "spin boxes, and text boxes with blue text"},
    {"UIGCLR_IMPUI_BLUTITLE", "UIGCLR_TB_TRANS_FILLRECT", nullptr, nullptr, "transparent text boxes"},
    {"UIGCLR_IMPUI_BLUTITLE", nullptr, nullptr, nullptr, "drop-downs"},
    {"UIGCLR_IMPUI_GRAYTITLE", nullptr, nullptr, nullptr, "drop-downs in inactive windows"},
    {"UIGCLR_IMPUI_BLUTITLE", "UIGCLR_PALETTE_ACTIVE_BASE", nullptr, nullptr, "lists of drop-downs"},
    {"UIGCLR_IMPUI_GRAYTITLE", "UIGCLR_PALETTE_INACTIVE_BASE", nullptr, nullptr,
     "lists of drop-downs in inactive windows"},
    {"UIGCLR_TEXT_TITLE", "UIGCLR_MESSAGEBOXEX_GRAD1", "UIGCLR_MESSAGEBOXEX_GRAD2", nullptr,
     "titles and check boxes of message boxes"},
    {"UIGCLR_TEXT_DEFAULT", "UIGCLR_MESSAGEBOXEX_GRAD1", "UIGCLR_MESSAGEBOXEX_GRAD2", nullptr,
     "descriptions of message boxes"},
    {"UIGCLR_MESSAGEBOXEX_HELP", "UIGCLR_MESSAGEBOXEX_GRAD1", "UIGCLR_MESSAGEBOXEX_GRAD2", nullptr,
     "help links of message boxes"},
    {"UIGCLR_MESSAGEBOXEX_HELP", "UIGCLR_TITLEBAR_GRAD1", "UIGCLR_TITLEBAR_GRAD2", nullptr, "captions of title bars"},
    {"UIGCLR_WHITE", "UIGCLR_PROGRESSDIALOGEX_GRAD1", "UIGCLR_PROGRESSDIALOGEX_GRAD2", nullptr, "progress dialogs"},
    {"UIGCLR_WHITE", "UIGCLR_IMPUI_DS_LNRGRAD1", "UIGCLR_IMPUI_DS_LNRGRAD2", nullptr, "ends of the busy panel"},
    {"UIGCLR_WHITE", "UIGCLR_IMPUI_DS_LNRGRAD2", "UIGCLR_IMPUI_DS_LNRGRAD3", nullptr, "sides of the busy panel"},
    {"UIGCLR_WHITE", "UIGCLR_IMPUI_DS_LNRGRAD3", "UIGCLR_IMPUI_DS_LNRGRAD4", nullptr, "inner part of the busy panel"},
    {"UIGCLR_WHITE", "UIGCLR_IMPUI_DS_LNRGRAD4", "UIGCLR_IMPUI_DS_LNRGRAD5", nullptr, "middle of the busy panel"},
    {"UIGCLR_BLACK", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, nullptr, "flat white push buttons",
     pushButtonTextAlpha},
    {"UIGCLR_WHITE", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, nullptr, "flat green, blue and glowing push buttons"},
    {"UIGCLR_WHITE", "UIGCLR_GLOW", nullptr, nullptr, "glowing push buttons under the pointer"},
    {"UIGCLR_BUTTONEX_TEXT", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, nullptr, "transparent push buttons"},
    {"UIGCLR_BLACK", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, u"PushbuttonWhiteBlit.png", "white push buttons",
     pushButtonTextAlpha},
    {"UIGCLR_WHITE", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, u"PushbuttonGreenBlit.png", "green push buttons"},
    {"UIGCLR_WHITE", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, u"PushbuttonBlueBlit.png", "blue push buttons"},
    {"UIGCLR_BLACK", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, u"PushbuttonWhitePressedBlit.png",
     "pressed white push buttons", pushButtonTextAlpha},
    {"UIGCLR_WHITE", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, u"PushbuttonGreenPressedBlit.png",
     "pressed green push buttons"},
    {"UIGCLR_WHITE", "UIGCLR_PALETTE_ACTIVE_BACKGROUND", nullptr, u"PushbuttonBluePressedBlit.png",
     "pressed blue push buttons"},
};

} // namespace lookcheck
