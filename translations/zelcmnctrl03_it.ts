<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Da %1 a %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>Valore minimo</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Valore massimo</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>Altro...</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>Sì a tutti</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>No a tutti</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>Più piccolo</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Più grande</translation>
    </message>
</context>
</TS>
