<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>설정 파일 %1을(를) 복사할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the program does not run on these settings</source>
        <translation>이 설정으로 실행 중인 프로그램이 없습니다</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>삭제할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>쓸 수 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>설정을 시스템 구성 폴더 대신 &lt;file&gt;에 보관합니다.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>이번 실행에서 &lt;language&gt;을(를) 사용합니다. 예: de, pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>이번 실행에서 light 또는 dark 테마를 사용합니다.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>설정의 사본(--settings가 없으면 예제)으로 창을 둘러보며 각 상태의 그림을 &lt;folder&gt;에 쓰고 끝냅니다.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>버전을 표시합니다.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2(--help 참고)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>옵션 --%1에 값이 필요합니다</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>예기치 않은 인수 &apos;%1&apos;</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>알 수 없는 테마 &apos;%1&apos;. 테마는 light와 dark입니다</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>알 수 없는 언어 &apos;%1&apos;. 언어는 %2입니다</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>화면 녹화 시간을 선택하세요.</translation>
    </message>
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>녹화를 시작합니다. 이미 실행 중인 프로그램이 있으면 그 프로그램에서 시작합니다.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>이미 실행 중인 프로그램의 녹화를 중지합니다.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>이미 실행 중인 프로그램의 녹화를 일시 중지하거나 재개합니다.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>이미 실행 중인 프로그램을 확인 없이 종료합니다.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>창 없이 시작합니다.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>옵션 --%1 및 --%2는 함께 사용할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>DurationText</name>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1시간 %2분</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>다음: %1, 가능한 한 빨리</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>다음: %1, %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>다음: %1, %2 후</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>녹화를 시작하는 중</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 녹화가 곧 시작됩니다</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 녹화가 %2 후 시작됩니다</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>이 녹화가 끝나면 %1 녹화가 시작됩니다</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>%1 녹화를 위해 이 녹화가 종료됩니다</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>%2 녹화를 위해 %1 후 종료</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>녹화 중</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>일시 중지됨: %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>녹화 중: %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>%1 녹화를 저장하는 중</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1 녹화가 완료되었습니다</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1 녹화가 중지되었습니다</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1 녹화가 일부만 완료되었습니다</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1 녹화가 실행되지 않았습니다</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1 녹화에 실패했습니다</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>이유: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>파일은 %1입니다.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>나머지는 새 파일에 녹화됩니다.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>컴퓨터를 절전 모드로 전환할 수 없습니다</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>컴퓨터를 최대 절전 모드로 전환할 수 없습니다</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>컴퓨터를 다시 시작할 수 없습니다</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>컴퓨터를 종료할 수 없습니다</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>컴퓨터가 절전 모드로 전환되지 않습니다</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>컴퓨터가 최대 절전 모드로 전환되지 않습니다</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>컴퓨터가 다시 시작되지 않습니다</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>컴퓨터가 종료되지 않습니다</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 녹화가 %2에 시작됩니다.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1 녹화가 곧 시작됩니다</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>녹화가 %1에 시작됩니다.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1 녹화 중입니다</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>현재 녹화가 곧 종료됩니다</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 녹화가 화면 연결을 기다리고 있습니다</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>화면이 연결되는 즉시 녹화됩니다.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1 녹화가 시작되지 않습니다</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>디스크가 가득 찼습니다. 여유 공간은 %1입니다.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>녹화가 끝났습니다.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>%1 녹화에 문제가 있습니다</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>화면</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>예약된 작업에 디스크 공간이 부족할 수 있습니다</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>예상 필요 공간은 %1, 사용 가능한 공간은 %2입니다.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>프로그램이 계속 실행됩니다</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>아이콘에서 창을 다시 표시할 수 있습니다. 이 동작은 &apos;일반&apos; 페이지에서 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>이 데스크톱에서는 일부 기능이 작동하지 않습니다</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>건너뛰기</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>계속 녹화</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>폴더에서 보기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>지금</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>%1 후 컴퓨터가 절전 모드로 전환됩니다</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>%1 후 컴퓨터가 최대 절전 모드로 전환됩니다</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>%1 후 컴퓨터가 다시 시작됩니다</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>%1 후 컴퓨터가 종료됩니다</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>화면</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>&apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>늦게 시작되었습니다</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>앞부분의 녹화가 중단되었습니다</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>레코더가 비정상적으로 종료되었습니다</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>프로그램이 예기치 않게 종료되었습니다</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>작업을 시작할 시간이 되었습니다</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>컴퓨터가 종료되었습니다</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>컴퓨터가 절전 모드였습니다</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>프로그램이 실행 중이 아니었습니다</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>일정이 꺼져 있었습니다</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>시계가 변경되었습니다</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>다른 녹화가 진행 중이었습니다</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>화면이 연결되어 있지 않았습니다</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>사용자가 건너뛰었습니다</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>레코더가 설치되어 있지 않습니다</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>디스크가 거의 가득 찼습니다</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>디스크가 가득 찼습니다</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>디스플레이를 사용할 수 없게 되었습니다</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>프로그램이 종료되었습니다</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>파일이 이미 있었습니다</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>폴더가 없었습니다</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>폴더에 쓸 수 없었습니다</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>데스크톱에서 허용하지 않았습니다</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>이 컴퓨터에서 작동하는 인코더가 없습니다</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>녹화된 내용이 없습니다</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>MP4로 변환하지 못했습니다</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>레코더에서 오류를 보고했습니다</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>일부만 녹화됨</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>사용자가 중지함</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>녹화되지 않음</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>녹화 중</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::AreaOverlay</name>
    <message>
        <source>Area of the screen</source>
        <translation>화면 영역</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>마우스로 영역을 그리거나 화살표 키로 이동하고 Shift와 화살표 키로 크기를 조정하세요. Enter 키를 누르면 확정되고 Esc 키를 누르면 취소됩니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>창 표시</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FigureLabel</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>녹화 폴더(&amp;F):</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>녹화 폴더</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>찾아보기(&amp;B)…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>녹화 폴더 찾아보기</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>폴더의 전체 경로를 입력하세요.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>폴더가 아니라 파일입니다.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>이 폴더에 쓸 권한이 없습니다.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>이 폴더의 여유 공간을 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>여유 공간: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>녹화를 저장할 위치를 선택하세요.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>이 폴더를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>이 폴더는 아직 없습니다. 첫 녹화 때 만들어집니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>이번 실행: %1 (시작할 때 선택됨)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>언어(&amp;L):</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>시스템 기본값(%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>테마(&amp;T):</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>밝게</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>어둡게</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>모든 질문 다시 표시(&amp;A)</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>설정 폴더 열기(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>로그 열기(&amp;O)</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>이번 실행의 로그가 없습니다.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>선택하신 대로 일부 질문은 더 이상 표시되지 않습니다.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>작업을 삭제하기 전과 같은 모든 질문이 표시됩니다.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>모든 질문이 다시 표시됩니다</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>문제가 생기면 설정과 이번 실행의 로그가 원인을 찾는 데 도움이 됩니다.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>응용 프로그램의 언어와 모양을 선택하세요.</translation>
    </message>
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>데스크톱과 함께 시작(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>창을 닫아도 계속 실행(&amp;K)</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>예정된 작업이 있거나 녹화 중이면 프로그램이 트레이에 남아 있습니다. 트레이가 없으면 창이 최소화됩니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>녹화 스케줄러</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>설정 페이지</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>변경 내용이 다시 저장됩니다.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>변경 내용을 저장하지 못했습니다. 지금 창을 닫으면 변경 내용이 손실됩니다.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>그래도 닫기</translation>
    </message>
    <message>
        <source>The recording that is running will be stopped.</source>
        <translation>진행 중인 녹화가 중지됩니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>예정된 작업이 %n개 있습니다. 프로그램이 실행 중이 아니면 녹화되지 않습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>알림 닫기</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>작업이 추가됨: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>모든 작업이 삭제됨</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>작업이 삭제됨: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>아직 영역을 선택하지 않아 화면 1(%1) 전체를 녹화합니다. 영역은 &apos;녹화&apos; 페이지에서 선택할 수 있습니다.</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>&apos;녹화&apos; 페이지에서 선택한 영역(%1)을 녹화합니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>이름에는 줄 바꿈이나 다른 제어 문자를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>이름에 사용할 수 없는 문자: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>이 작업의 시간이 지났습니다.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>종료 후: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>%1에 종료</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>다음 날 %1에 종료</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>연결되지 않은 화면 %1 녹화</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>녹화 대상: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>초당 프레임 수(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>품질(&amp;Q):</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>파일 형식(&amp;E):</translation>
    </message>
    <message>
        <source>Matroska (.mkv)</source>
        <translation>Matroska (.mkv)</translation>
    </message>
    <message>
        <source>MP4 (.mp4)</source>
        <translation>MP4 (.mp4)</translation>
    </message>
    <message>
        <source>Record the mouse &amp;pointer</source>
        <translation>마우스 포인터 녹화(&amp;P)</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>작은 크기: 시간당 약 %1</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>보통: 시간당 약 %1</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>고품질: 시간당 약 %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>작업이 곧 시작됩니다.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>데스크톱이 알림을 표시하지 않습니다. 녹화된 것과 녹화되지 않은 것은 &apos;녹화 목록&apos; 페이지에서 확인할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>녹화 중</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>녹화된 시간</translation>
    </message>
    <message>
        <source>End</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>파일 크기</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>여유 공간</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>손실된 프레임</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>녹화 시작(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>중지(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>건너뛰기(&amp;K)</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>이 작업 건너뛰기</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>계속 녹화(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>취소(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>지금(&amp;N)</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>%1까지</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 남음</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>프레임 %n개 손실</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>재개(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>일시 중지(&amp;P)</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>녹화</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>녹화할 대상과 방법을 선택하세요.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>파일이 없음</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>녹화 목록</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>녹화된 것과 녹화되지 않은 것을 표시합니다.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>아직 녹화된 것이 없습니다. 아래 버튼으로 녹화를 시작하거나 &apos;일정&apos; 페이지에서 예약하면 여기에 표시됩니다.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>폴더에서 보기(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>복구(&amp;R)</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>비정상 종료로 파일 끝에 기록되지 못한 정보를 추가하여 플레이어에서 재생 위치를 이동할 수 있게 합니다.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>휴지통으로 이동(&amp;T)</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>목록에서 제거(&amp;L)</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>이 녹화의 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>복구하는 중: %1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>복구됨: %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>복구하지 못했습니다: %1</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>녹화 &apos;%1&apos;이(가) 휴지통으로 이동됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>&apos;%1&apos;이(가) 목록에서 제거됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>휴지통으로 이동</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>%1을(를) 휴지통으로 이동하지 못했습니다</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>목록에서 제거됨: %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>휴지통으로 이동됨: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>일정</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>녹화 일정</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>녹화를 자동으로 중지할 시기와 자동으로 시작할 녹화를 선택하세요.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>폴더 %1을(를) 만들 수 없습니다</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>도달할 수 없음: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1을(를) 쓸 수 없습니다</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>소리를 녹음할 장치:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>사운드 장치</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>모든 소리를 한 트랙에 녹음(&amp;K)</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>선택하지 않으면 편집할 수 있도록 장치마다 별도의 트랙이 만들어집니다. 대부분의 플레이어는 첫 번째 트랙만 재생합니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>사운드 장치를 찾는 중…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>이 컴퓨터의 사운드 장치 목록을 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>이 컴퓨터에 사운드 장치가 없습니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1(연결되지 않음)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>%1의 음량 수준</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>화면 녹화(&amp;C)</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>녹화할 화면</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>선택한 영역 녹화(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>왼쪽(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>위쪽(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>너비(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>높이(&amp;H):</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>영역의 왼쪽 가장자리(픽셀)</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>영역의 위쪽 가장자리(픽셀)</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>영역의 너비(픽셀)</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>영역의 높이(픽셀)</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>화면에서 선택(&amp;N)…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>윤곽선 표시(&amp;O)</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>화면 %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>화면 %1(연결되지 않음)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>아직 영역을 선택하지 않아 대신 화면 1 전체를 녹화합니다. &apos;선택한 영역&apos;을 사용하는 작업도 마찬가지입니다.</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>&apos;선택한 영역&apos;을 사용하는 작업도 이 영역을 녹화합니다.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>녹화할 화면이 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>선택한 영역이 어느 화면에도 없습니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>녹화 시작(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>중지(&amp;T)</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>창 표시(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>녹화 중이 아님</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>녹화 중</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>재개(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>일시 중지(&amp;P)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrialCard</name>
    <message>
        <source>See and hear what a recording with these settings is like.</source>
        <translation>이 설정으로 녹화하면 어떻게 보이고 들리는지 확인하세요.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>5초간 시험(&amp;V)</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>시험 녹화</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>시험 녹화가 취소되었습니다.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>시험 녹화를 만들었지만 이를 열 수 있는 프로그램이 없습니다: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>시험 녹화를 만들어 열었습니다. 레코더 메시지: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>시험 녹화를 만들어 열었습니다.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>레코더 px-recorder를 시작할 수 없습니다. 완전히 설치되어 있습니까?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>아무것도 녹화하지 못했습니다. 레코더 메시지: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>녹화하는 동안 컴퓨터가 절전 모드로 전환되는 것을 막을 수 없습니다.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>파일이 닫히기 전에 컴퓨터가 종료되는 것을 막을 수 없습니다.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>녹화하는 동안 화면이 꺼지는 것을 막을 수 없습니다.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>녹화가 진행 중입니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1의 버전이 다릅니다</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1을(를) 시작할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>레코더가 충돌했습니다(신호 %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>레코더가 예기치 않게 종료되었습니다(종료 상태 %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>레코더가 제시간에 시작되지 않았습니다.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>레코더가 응답하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>녹화 목록 %1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>녹화 목록 %1이(가) 손상되었으며 다른 이름으로 보관할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>녹화 목록의 일부 항목을 사용할 수 없었습니다. 파일의 내용은 %1에 보관되어 있습니다.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>녹화 목록을 해석할 수 없어 새로 시작합니다. 목록의 내용은 %1에 보관되어 있습니다.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: 녹화 목록이 %2에 저장되지 않았습니다</translation>
    </message>
</context>
</TS>
