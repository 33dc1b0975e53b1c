#pragma once

class QGridLayout;

/** What a CZoomSlider keeps besides its parts. */
class CZoomSliderPrivate
{
public:
    ~CZoomSliderPrivate();

    void init();

    QGridLayout *m_pInnerLayout = nullptr; // owned by the layout around it
    bool m_bSnapping = false;
};
