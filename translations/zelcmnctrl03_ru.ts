<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>От %1 до %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>Нижнее значение</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Верхнее значение</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>Ещё...</translation>
    </message>
</context>
<context>
    <name>CMessageBoxEx</name>
    <message>
        <source>m_tr_OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>m_tr_Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>Прервать</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>Да для всех</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>Нет для всех</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>Меньше</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Больше</translation>
    </message>
</context>
</TS>
