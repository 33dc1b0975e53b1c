<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 έως %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Από %1 έως %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>Κάτω τιμή</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Άνω τιμή</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>Περισσότερα...</translation>
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
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>Ναι</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>Όχι</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>Ματαίωση</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>Επανάληψη</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>Παράβλεψη</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>Ναι σε όλα</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>Όχι σε όλα</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Ελαχιστοποίηση</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Επαναφορά</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Μεγιστοποίηση</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>Μικρότερο</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ζουμ</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Μεγαλύτερο</translation>
    </message>
</context>
</TS>
