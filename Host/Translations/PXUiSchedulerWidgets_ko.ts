<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
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
        <translation>설정에서 선택한 영역을 녹화합니다. 선택하지 않았으면 첫 번째 화면 전체를 녹화합니다.</translation>
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
</TS>
