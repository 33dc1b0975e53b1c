<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 és %2 között</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>Alsó érték</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Felső érték</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>Több...</translation>
    </message>
</context>
<context>
    <name>CMessageBoxEx</name>
    <message>
        <source>m_tr_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>m_tr_Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>Megszakítás</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>Kihagyás</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>Igen, mindre</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>Nem, egyikre sem</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Kis méret</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Előző méret</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Teljes méret</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>Kisebb</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Nagyítás</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Nagyobb</translation>
    </message>
</context>
</TS>
