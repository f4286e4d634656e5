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
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>디스크 공간이 부족하여 녹화를 시작할 수 없습니다. 디스크 공간을 확보한 후 다시 시도하거나 %1파일 설정%2에서 녹화를 저장할 다른 드라이브를 선택하세요.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>파일 설정</translation>
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
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>새 녹화:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>완료 시 동작(&amp;A):</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>만들기</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>파일 이름(&amp;N):</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>날짜(&amp;D):</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>yyyy. MM. dd.</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>시간(&amp;T):</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>길이(&amp;U):</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>녹화 영역:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>선택한 영역</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>설정에서 선택한 영역을 녹화합니다. 선택하지 않았으면 첫 번째 화면 전체를 녹화합니다.
이 버전은 아직 녹화하지 않습니다.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>전체 화면</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>작업 이름을 입력하세요.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>같은 이름의 작업이 이미 있습니다.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>이 녹화 시간이 목록의 다른 녹화와 겹칩니다.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>아무 작업 안 함</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>앱 종료</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>절전</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>최대 절전 모드</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>시스템 종료</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>모든 작업이 녹화 일정에서 영구적으로 삭제됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>작업이 저장되지 않았습니다. 이 작업을 녹화 일정에 추가하시겠습니까?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>추가 안 함</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>녹화 예약 안 함(&amp;C)</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>지정한 시간 후 녹화 중지(&amp;P)</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>일정에 따라 녹화(&amp;R)</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>녹화 추가</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>녹화 시간(&amp;U):</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>녹화가 끝나면(&amp;W):</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>작업 </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>yyyy. MM. dd.</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>이 작업은 녹화 일정에서 영구적으로 삭제됩니다. 작업을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>항상 삭제</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>설정 파일 %1은(는) 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>설정 파일 %1을(를) 만들 수 없습니다. 폴더가 없으며 폴더도 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>설정 파일 %1을(를) 다른 프로세스에서 사용 중입니다.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>설정 파일 %1을(를) 만들 수 없습니다. 폴더에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>설정 파일 %1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>설정 파일 %1이(가) 손상되었으며 다른 이름으로 보관할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>설정 파일을 해석할 수 없어 기본값을 사용합니다. 파일의 내용은 %1에 보관되어 있습니다.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>일부 설정을 사용할 수 없었습니다. 제외된 작업: %2. 파일의 내용은 %1에 보관되어 있습니다.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>일부 설정을 사용할 수 없었습니다. 파일의 내용은 %1에 보관되어 있습니다.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>다른 프로그램이 설정 파일을 변경했습니다. 변경된 내용은 %1에 보관되어 있으며, 여기에 표시된 설정이 계속 사용됩니다.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>파일의 일부만 읽을 수 있었습니다</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: 변경 내용이 %1에 저장되지 않았습니다</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>다른 프로세스에서 파일을 사용 중입니다</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>폴더에 쓸 수 없습니다</translation>
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
        <source>Ready to record</source>
        <translation>녹화 준비 완료</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>녹화 시작(&amp;S)</translation>
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
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>일정</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>녹화를 자동으로 중지하거나 시작할 때를 선택하세요. 선택은 저장되지만 이 버전은 아직 녹화하지 않습니다.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>녹화 일정</translation>
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
</TS>
