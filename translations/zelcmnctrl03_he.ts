<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 עד %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>מ-%1 עד %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>ערך תחתון</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>ערך עליון</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>עוד...</translation>
    </message>
</context>
<context>
    <name>CMessageBoxEx</name>
    <message>
        <source>m_tr_OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>m_tr_Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>כן</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>לא</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>הפסק</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>נסה שוב</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>התעלם</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>כן להכול</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>לא להכול</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>מזער</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>שחזר</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>הגדל</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגור</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>הקטן תצוגה</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>שינוי תצוגה</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>הגדל תצוגה</translation>
    </message>
</context>
</TS>
