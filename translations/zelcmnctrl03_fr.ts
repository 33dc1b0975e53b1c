<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 à %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>Valeur inférieure</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Valeur supérieure</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>Plus...</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>Oui pour tout</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>Non pour tout</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
</context>
</TS>
