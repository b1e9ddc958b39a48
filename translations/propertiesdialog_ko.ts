<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>%1의 옵션을 저장할 수 없습니다. 너무 길거나 줄 바꿈이 들어 있습니다.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>%2에서 %1의 암호? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>&quot;%1&quot; 프린터에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>인쇄 서버가 제시간에 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>인쇄 서버의 응답이 도중에 끊어졌습니다.</translation>
    </message>
</context>
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
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>%1~%2인치</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1인치 = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>%1에서 %2 사이의 숫자만 가능합니다(소수점 이하 두 자리까지).</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>%1~%2도트</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1도트 = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>%1에서 %2 사이의 정수만 가능합니다.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>인쇄 서버에서 사용자 이름과 암호를 요구합니다.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>인증되지 않았습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>사용자 이름:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>암호:</translation>
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
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>이 프린터의 드라이버에는 이 설정이 없습니다.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>%1 x %2인치에서 %3 x %4인치까지.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>이 프린터의 드라이버는 목록에 있는 용지 크기만 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>프린터에 맡깁니다(%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>비워 두면 프린터에 맡깁니다(%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>이 프린터의 드라이버에는 라벨 설정이 없습니다. 용지 크기와 방향만 적용됩니다.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 및 %2 설정은 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>이 프리셋에는 프린터의 현재 설정을 저장할 수 없습니다: %1. 이 프리셋을 선택하면 해당 설정이 변경됩니다.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>라벨 프린터 속성</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>프린터 선택(&amp;P):</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>대기열</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>작업을 받지 않음</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>테스트 라벨 인쇄(&amp;T)</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>라벨 프린터의 설정을 표시하고 변경합니다.</translation>
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
    <message>
        <source>Label Printer Properties</source>
        <translation>라벨 프린터 속성</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>목록에서 선택하는 대신 사용할 대기열입니다.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>지정한 대기열 또는 기본 대기열에서 오프셋과 인쇄 농도를 조정하기 위한 라벨을 인쇄합니다.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>버전을 표시합니다.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>인쇄 서비스에 연결할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>설정된 프린터가 없습니다.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>테스트 라벨을 인쇄할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>기본 프린터가 없습니다. -p로 프린터를 지정하십시오</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>테스트 라벨을 %1(으)로 보냈습니다.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>창을 표시할 수 없습니다: DISPLAY와 WAYLAND_DISPLAY가 모두 설정되지 않았습니다</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>%1에서 창을 표시할 수 없습니다</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>기본 프린터 &quot;%1&quot;이(가) 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>프리셋을 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>설정을 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 및 %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>다음 설정은 함께 사용할 수 없습니다:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>다음과 같이 변경하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>사용법: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[옵션]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>옵션:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>알 수 없는 옵션 &quot;%1&quot;입니다.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; 뒤에 값이 없습니다.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; 뒤에 예기치 않은 값이 있습니다.</translation>
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
<context>
    <name>TestLabel</name>
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
        <source>Darkness %1</source>
        <translation>인쇄 농도 %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>속도 %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>오프셋 %1, %2도트</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>기본 설정</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>테스트 라벨</translation>
    </message>
</context>
</TS>
