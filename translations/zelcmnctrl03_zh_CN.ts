<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>从 %1 到 %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>下限值</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>上限值</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>更多...</translation>
    </message>
</context>
<context>
    <name>CMessageBoxEx</name>
    <message>
        <source>m_tr_OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>m_tr_Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>全部是</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>全部否</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
    </message>
</context>
</TS>
