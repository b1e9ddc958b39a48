<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>확장 인쇄 오프셋 선택</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>오프셋:</translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation>-0.75mm</translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation>-0.50mm</translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation>-0.25mm</translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation> 0.00mm</translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation> 0.25mm</translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation> 0.50mm</translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation> 0.75mm</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1을(를) 수정할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1을(를) 삭제할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>DL</source>
        <translation>DL</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>속성</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>기본 프린터</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>종류:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>위치:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>여기</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>파일로 인쇄</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>인쇄 매수:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>지금 인쇄하시겠습니까?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>현재 프린터를 다음 프린터로 변경합니다: 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation> 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>프린터 변경</translation>
    </message>
</context>
<context>
    <name>PrintPropertiesDialog</name>
    <message>
        <source>PrintPropertiesDialog</source>
        <translation>PrintPropertiesDialog</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>페이지 설정</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>사용자 정의 용지 크기</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>너비:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>인치</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>높이:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>세로</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>가로</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>세로 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>가로 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>효과</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>미러 이미지</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>흑백 반전</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>관리...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>속도 설정</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>인쇄 농도</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>프리셋을 사용하면 인쇄 설정을 이름으로 저장하고
여러 구성을 빠르게 전환할 수 있습니다.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>프리셋 목록:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>설명:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>새로 만들기</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>업데이트...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>용지</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>용지 설정</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>용지 종류:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>검은색 표시 너비:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>검은색 표시 오프셋:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>인쇄 방식:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>용지 처리</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>절단:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>급지:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>역급지:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>도트</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>겹침:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>위치 조정</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>정지 위치:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>시작 위치:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>사용자 명령</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>작업 시작</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>라벨 시작</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>라벨 끝</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>작업 끝</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>위치 조정</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>가로 오프셋:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>세로 오프셋:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>연속 용지</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>간격이 있는 라벨</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>표시가 있는 라벨</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>절단 안 함</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>작업 후 절단</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>페이지 후 절단</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>세로 오프셋</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>정지 위치</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>간격 크기</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>간격 오프셋</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>검은색 표시 크기</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>검은색 표시 오프셋</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>새 프리셋</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>새 프리셋 %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>방향: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>방향: %1, 미러 이미지</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>방향: %1, 흑백 반전</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>방향: %1, 미러 이미지 및 흑백 반전</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>라벨 프린터의 설정을 표시하고 변경합니다.</translation>
    </message>
    <message>
        <source>The queue, instead of the default one.</source>
        <translation>기본 대기열 대신 사용할 대기열.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>대기열을 나열합니다. 기본 대기열은 별표로 표시됩니다.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>예기치 않은 인수 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>&quot;%1&quot; 프린터가 없습니다. --list로 목록을 볼 수 있습니다</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>이 프리셋은 이 드라이버의 현재 설정을 포함합니다.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>이 프리셋은 이 드라이버의 원래 기본 설정을 포함합니다.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>%1 인쇄 기본 설정</translation>
    </message>
</context>
</TS>
