<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>Valor inferior</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Valor superior</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>Mais...</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>Sim para todos</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>Não para todos</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>Menor</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Maior</translation>
    </message>
</context>
</TS>
