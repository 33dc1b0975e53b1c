<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Von %1 bis %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>Unterer Wert</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Oberer Wert</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>Mehr...</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>Vorgang abbrechen</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>Ja für alle</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>Nein für alle</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
</context>
</TS>
