<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 ile %2 arası</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>Alt değer</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Üst değer</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>Diğer...</translation>
    </message>
</context>
<context>
    <name>CMessageBoxEx</name>
    <message>
        <source>m_tr_OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>m_tr_Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>Yeniden Dene</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>Yoksay</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>Tümüne Evet</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>Tümüne Hayır</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Simge Durumuna Küçült</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Önceki Boyut</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ekranı Kapla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>Daha küçük</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Yakınlaştırma</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Daha büyük</translation>
    </message>
</context>
</TS>
