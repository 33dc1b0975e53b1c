<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>CDSliderEx</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>%1부터 %2까지</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>description, values</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Lower value</source>
        <translation>하한값</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>상한값</translation>
    </message>
</context>
<context>
    <name>CDropDownEx</name>
    <message>
        <source>More...</source>
        <translation>더 보기...</translation>
    </message>
</context>
<context>
    <name>CMessageBoxEx</name>
    <message>
        <source>m_tr_OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>m_tr_Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>m_tr_Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>m_tr_No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>m_tr_Abort</source>
        <translation>중단</translation>
    </message>
    <message>
        <source>m_tr_Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>m_tr_Ignore</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>m_tr_YestoAll</source>
        <translation>모두 예</translation>
    </message>
    <message>
        <source>m_tr_NotoAll</source>
        <translation>모두 아니요</translation>
    </message>
</context>
<context>
    <name>CTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>이전 크기로</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>CZoomSlider</name>
    <message>
        <source>Smaller</source>
        <translation>작게</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대/축소</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>크게</translation>
    </message>
</context>
</TS>
