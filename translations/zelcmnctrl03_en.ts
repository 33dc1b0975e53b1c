<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>From %1 to %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>Lower value</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Upper value</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>More...</translation>
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
        <translation>Cancel</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>Abort</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>Yes to All</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>No to All</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>Smaller</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Larger</translation>
    </message>
</context>
</TS>
