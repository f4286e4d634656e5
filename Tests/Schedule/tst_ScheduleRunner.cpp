// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RunnerStory.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// What happens to a runner and, in the lines that begin with ">", what it does then.
struct Story {
    const char* name;
    const char* text;
};

constexpr Story TasksStories[] = {
    {"is prepared ten seconds before, starts to the microsecond, and leaves when it has ended", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 95 start 1 at 100 for 60
at 100.02
recording 1
> 100.02 list 1 A 100.02..100.02 recording file1
> 100.02 tell started A
status
> recording A from 100.02 to 160
at 160.02
finished 1 duration 60
> 160.02 update 1 A 100.02..160.02 complete file1
> 160.02 tell ended A
> 160.02 remove A
> 160.02 let sleep
at 1000
wakes
> 1
)"},
    {"may become ready late, and starts at once then, for what is left", R"(
task A 100 60
at 103.5
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 103.5 start 1 now for 56.5
at 103.6
recording 1
> 103.6 list 1 A 103.6..103.6 recording file1
> 103.6 tell started A
at 160
finished 1 duration 56.5
> 160 update 1 A 103.6..160 partial late file1
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"is complete when no more than two seconds are missing at its start", R"(
task A 100 60
at 102
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 102 start 1 now for 58
recording 1
> 102 list 1 A 102..102 recording file1
> 102 tell started A
at 160
finished 1 duration 58
> 160 update 1 A 102..160 complete file1
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"is recorded from the moment of its being added when that is in its time", R"(
at 130
task A 100 60
> 130 prepare 1 A screen 0 of 130
> 130 hold awake
ready 1
> 130 start 1 now for 30
recording 1
> 130 list 1 A 130..130 recording file1
> 130 tell started A
at 160
finished 1 duration 30
> 160 update 1 A 130..160 partial late file1
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"was missed while the program was not running", R"(
at 200
restart
task A 100 60
> 200 list 1 A 100..160 missed not-running
> 200 tell missed A
> 200 remove A
)"},
    {"was missed while the machine slept", R"(
task A 100 60
sleep 200
> 200 list 1 A 100..160 missed suspended
> 200 tell missed A
> 200 remove A
)"},
    {"is recorded from the moment of waking up", R"(
task A 100 60
sleep 130
> 130 prepare 1 A screen 0 of 130
> 130 hold awake
ready 1
> 130 start 1 now for 30
recording 1
> 130 list 1 A 130..130 recording file1
> 130 tell started A
at 160
finished 1 duration 30
> 160 update 1 A 130..160 partial late file1
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"was missed while no task was to run", R"(
off
task A 100 60
at 200
status
> idle at rest
on
> 200 list 1 A 100..160 missed schedule-off
> 200 tell missed A
> 200 remove A
)"},
    {"is not run, and not taken away, while no task is to run", R"(
off
task A 100 60
at 130
status
> idle at rest
on
> 130 prepare 1 A screen 0 of 130
> 130 hold awake
ready 1
> 130 start 1 now for 30
recording 1
> 130 list 1 A 130..130 recording file1
> 130 tell started A
status
> recording A from 130 to 160
)"},
    {"is stopped when tasks are turned off, and is the user's doing then", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 130
off
> 130 stop 1
finished 1 stopped 30
> 130 update 1 A 100..130 stopped user file1
> 130 tell ended A
> 130 remove A
> 130 let sleep
)"},
    {"is dropped when it is deleted while it is prepared", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
delete A
> 95 cancel 1
at 95.1
cancelled 1
> 95.1 let sleep
status
> idle at rest
)"},
    {"is stopped when it is deleted while it is recorded", R"(
task A 100 60 0 shutdown
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 130
delete A
> 130 stop 1
finished 1 stopped 30
> 130 update 1 A 100..130 stopped user file1
> 130 tell ended A
> 130 let sleep
)"},
    {"is dropped and prepared anew when it is moved while it is prepared", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 95 start 1 at 100 for 60
task A 200 60
> 95 cancel 1
cancelled 1
> 95 let sleep
at 190
> 190 prepare 2 A screen 0 of 200
> 190 tell starts soon A
> 190 hold awake
)"},
    {"is told to be skipped, and is listed as missed for that", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
skip A
> 95 list 1 A 100..160 missed skipped
> 95 remove A
> 95 cancel 1
cancelled 1
> 95 let sleep
)"},
    {"is skipped by Stop before its first frame", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 95 start 1 at 100 for 60
stop
> 95 list 1 A 100..160 missed skipped
> 95 remove A
> 95 cancel 1
cancelled 1
> 95 let sleep
)"},
    {"is not skipped while it is recorded", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
skip A
skip B
)"},
    {"is stopped by the user, and its action with it", R"(
task A 100 60 0 shutdown
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 130
stop
> 130 stop 1
stop
finished 1 stopped 30
> 130 update 1 A 100..130 stopped user file1
> 130 tell ended A
> 130 remove A
> 130 let sleep
)"},
    {"follows another at once, and is ready by then", R"(
task A 100 60
task B 160 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 155
> 150 prepare 2 B screen 0 of 160
> 150 tell starts soon B
ready 2
status
> recording A from 100 to 160
at 160.01
finished 1 duration 60
> 160.01 update 1 A 100..160.01 complete file1
> 160.01 tell ended A
> 160.01 remove A
> 160.01 start 2 now for 59.99
at 160.03
recording 2
> 160.03 list 2 B 160.03..160.03 recording file2
> 160.03 tell started B
)"},
    {"follows another that is slow to close as soon as that is closed", R"(
task A 100 60
task B 160 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
at 103
recording 1
> 103 list 1 A 103..103 recording file1
> 103 tell started A
at 160
> 153 prepare 2 B screen 0 of 160
> 153 tell starts soon B
ready 2
at 163.5
status
> recording A from 103 to 160
at 164
finished 1 duration 60
> 164 update 1 A 103..164 partial late file1
> 164 tell ended A
> 164 remove A
> 164 start 2 now for 56
recording 2
> 164 list 2 B 164..164 recording file2
> 164 tell started B
at 220
finished 2 duration 56
> 220 update 2 B 164..220 partial late file2
> 220 tell ended B
> 220 remove B
> 220 let sleep
)"},
    {"ends by the wall clock although it was paused, and is whole all the same", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 120
pause
> 120 pause 1
pause
status
> recording A from 100 to 160 paused
at 140
resume
> 140 resume 1
resume
at 160
> 160 stop 1
finished 1 stopped 40
> 160 update 1 A 100..160 complete file1
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"ends in a pause that nobody ends", R"(
task A 100 60 0 shutdown
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 120
pause
> 120 pause 1
at 160
> 160 stop 1
status
> closing A from 100 to 160
finished 1 stopped 20
> 160 update 1 A 100..160 complete file1
> 160 tell ended A
> 160 remove A
> 160 ask for shutdown
> 160 let sleep
)"},
    {"is stopped two seconds after its end by a recorder that does not end it", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 165
> 162 stop 1
finished 1 stopped 62
> 165 update 1 A 100..165 complete file1
> 165 tell ended A
> 165 remove A
> 165 let sleep
)"},
    {"waits for its screen, and for no other", R"(
task A 100 60 1
no-screen 1
at 95
at 110
> 100 tell screen awaited by A
screen 0
at 130
screen 1
> 130 prepare 1 A screen 1 of 130
> 130 hold awake
ready 1
> 130 start 1 now for 30
recording 1
> 130 list 1 A 130..130 recording file1
> 130 tell started A
at 160
finished 1 duration 30
> 160 update 1 A 130..160 partial late file1
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"is missed when its screen never comes", R"(
task A 100 60 1
no-screen 1
at 170
> 100 tell screen awaited by A
> 160 list 1 A 100..160 missed screen-missing
> 160 tell missed A
> 160 remove A
)"},
    {"goes on in a new file when its screen came back", R"(
task A 100 60 1
at 100
> 90 prepare 1 A screen 1 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 120
no-screen 1
finished 1 no-display 20
> 120 update 1 A 100..120 partial no-display file1
> 120 tell ended A goes on
> 120 tell screen awaited by A
> 120 let sleep
at 130
screen 1
> 130 prepare 2 A screen 1 of 130
> 130 hold awake
ready 2
> 130 start 2 now for 30
recording 2
> 130 list 2 A 130..130 recording file2
> 130 tell started A
at 160
finished 2 duration 30
> 160 update 2 A 130..160 partial rest file2
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"waits longer each time when its screen is there and ends each recording", R"(
task A 100 60 1
at 100
> 90 prepare 1 A screen 1 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 102
finished 1 no-display 2
> 102 update 1 A 100..102 partial no-display file1
> 102 tell ended A goes on
> 102 prepare 2 A screen 1 of 102
ready 2
> 102 start 2 now for 58
recording 2
> 102 list 2 A 102..102 recording file2
> 102 tell started A
finished 2 no-display 0
> 102 update 2 A 102..102 partial no-display file2
> 102 tell ended A goes on
> 102 let sleep
at 103.9
at 105
> 104 prepare 3 A screen 1 of 104
> 104 hold awake
ready 3
> 105 start 3 now for 55
recording 3
> 105 list 3 A 105..105 recording file3
> 105 tell started A
finished 3 no-display 0
> 105 update 3 A 105..105 partial no-display file3
> 105 tell ended A goes on
> 105 let sleep
at 110
> 109 prepare 4 A screen 1 of 109
> 109 hold awake
)"},
    {"is over with its end when its screen does not come back", R"(
task A 100 60 1
at 100
> 90 prepare 1 A screen 1 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 120
no-screen 1
finished 1 no-display 20
> 120 update 1 A 100..120 partial no-display file1
> 120 tell ended A goes on
> 120 tell screen awaited by A
> 120 let sleep
at 170
> 160 remove A
)"},
    {"wakes nobody before its time", R"(
task A 100000 60
at 99985
wakes
> 0
at 99991
> 99990 prepare 1 A screen 0 of 100000
> 99990 tell starts soon A
> 99990 hold awake
wakes
> 1
)"},
    {"is recorded although it is added when a later one is prepared", R"(
task B 100 60
at 92
> 90 prepare 1 B screen 0 of 100
> 90 tell starts soon B
> 90 hold awake
ready 1
> 92 start 1 at 100 for 60
task A 92 8
> 92 cancel 1
> 92 prepare 2 A screen 0 of 92
cancelled 1
at 92.1
ready 2
> 92.1 start 2 now for 7.9
recording 2
> 92.1 list 1 A 92.1..92.1 recording file2
> 92.1 tell started A
> 92.1 prepare 3 B screen 0 of 100
at 100
ready 3
finished 2 duration 7.9
> 100 update 1 A 92.1..100 complete file2
> 100 tell ended A
> 100 remove A
> 100 start 3 now for 60
)"},
    {"tells the user again when it was moved by its owner", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
task A 1000 60
> 95 cancel 1
cancelled 1
> 95 let sleep
at 992
> 990 prepare 2 A screen 0 of 1000
> 990 tell starts soon A
> 990 hold awake
)"},
};

constexpr Story ByHandStories[] = {
    {"is recorded at once, to its limit", R"(
record 30
> 0 prepare 1 by hand of 0
> 0 start 1 now for 30
> 0 hold awake
status
> preparing from 0
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
status
> recording from 0 to 30
at 30
finished 1 duration 30
> 30 update 1 Recording 0..30 complete file1
> 30 tell ended
> 30 let sleep
)"},
    {"is recorded until it is stopped", R"(
record 0 shutdown
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
at 500
stop
> 500 stop 1
finished 1 stopped 500
> 500 update 1 Recording 0..500 stopped user file1
> 500 tell ended
> 500 let sleep
)"},
    {"is cancelled before its first frame", R"(
record 0
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
stop
> 0 cancel 1
cancelled 1
> 0 let sleep
status
> idle at rest
)"},
    {"is not started beside another", R"(
record 0
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
record 0
> no
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
record 0
> no
)"},
    {"is not started just before a task", R"(
task A 100 60
at 91
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
record 0
> no
)"},
    {"is started before a task whose screen is missing", R"(
task A 100 60 1
no-screen 1
at 95
record 0
> 95 prepare 1 by hand of 95
> 95 start 1 now for 0
> 95 hold awake
status
> preparing from 95 next A not there
screen 1
> 95 cancel 1
> 95 prepare 2 A screen 1 of 100
> 95 tell starts soon A
)"},
    {"gives way to a task, and says so a minute before", R"(
task A 100 60 0
record 0
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
at 95
> 40 tell giving way to A
> 90 stop 1
> 90 prepare 2 A screen 0 of 100
> 90 tell starts soon A
finished 1 stopped 90
> 95 update 1 Recording 0..95 partial gave-way file1
> 95 tell ended
ready 2
> 95 start 2 at 100 for 60
at 100
recording 2
> 100 list 2 A 100..100 recording file2
> 100 tell started A
)"},
    {"gives way with its first frame still to come", R"(
task A 100 60
at 85
record 0
> 85 prepare 1 by hand of 85
> 85 start 1 now for 0
> 85 tell giving way to A
> 85 hold awake
at 90
> 90 cancel 1
> 90 prepare 2 A screen 0 of 100
> 90 tell starts soon A
cancelled 1
ready 2
> 90 start 2 at 100 for 60
)"},
    {"says so again of another recording", R"(
task A 100 60
record 0
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
at 45
> 40 tell giving way to A
stop
> 45 stop 1
finished 1 stopped 5
> 45 update 1 Recording 0..45 stopped user file1
> 45 tell ended
> 45 let sleep
record 0
> 45 prepare 2 by hand of 45
> 45 start 2 now for 0
> 45 tell giving way to A
> 45 hold awake
)"},
    {"is kept, and the task starts late", R"(
task A 100 60
record 0
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
at 50
> 40 tell giving way to A
keep
status
> recording from 0 kept next A
at 130
stop
> 130 stop 1
> 130 prepare 2 A screen 0 of 130
finished 1 stopped 130
> 130 update 1 Recording 0..130 stopped user file1
> 130 tell ended
ready 2
> 130 start 2 now for 30
recording 2
> 130 list 2 A 130..130 recording file2
> 130 tell started A
status
> recording A from 130 to 160
at 160
finished 2 duration 30
> 160 update 2 A 130..160 partial late file2
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"is kept beyond the end of a task", R"(
task A 100 60
record 0
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
keep
at 200
> 160 list 2 A 100..160 missed other-recording
> 160 tell missed A
> 160 remove A
)"},
    {"counts what it records, not its pauses", R"(
record 30
> 0 prepare 1 by hand of 0
> 0 start 1 now for 30
> 0 hold awake
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
pause
> 10 pause 1
at 100
status
> recording from 0 to 30 paused
resume
> 100 resume 1
status
> recording from 0 to 120
at 130
finished 1 duration 30
> 130 update 1 Recording 0..130 complete file1
> 130 tell ended
> 130 let sleep
)"},
    {"goes on in a new file when the recorder died", R"(
record 30
> 0 prepare 1 by hand of 0
> 0 start 1 now for 30
> 0 hold awake
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
progress 1 9
died 1 file1
> 10 update 1 Recording 0..10 partial recorder-died file1
> 10 prepare 2 by hand of 10
> 10 start 2 now for 21
> 10 tell failed goes on
ready 2
recording 2
> 10 list 2 Recording 10..10 recording file2
at 31
finished 2 duration 21
> 31 update 2 Recording 10..31 partial rest file2
> 31 tell ended
> 31 let sleep
)"},
    {"goes on twice and not for ever", R"(
record 0
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
died 1
> 0 update 1 Recording 0..0 partial recorder-died file1
> 0 prepare 2 by hand of 0
> 0 start 2 now for 0
> 0 tell failed goes on
recording 2
> 0 list 2 Recording 0..0 recording file2
died 2
> 0 update 2 Recording 0..0 partial recorder-died file2
> 0 prepare 3 by hand of 0
> 0 start 3 now for 0
> 0 tell failed goes on
recording 3
> 0 list 3 Recording 0..0 recording file3
died 3
> 0 update 3 Recording 0..0 partial recorder-died file3
> 0 tell failed
> 0 let sleep
status
> idle at rest
)"},
    {"fails when the recorder does", R"(
record 0
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
failed 1 no-encoder
> 0 list 1 Recording 0..0 failed no-encoder
> 0 tell failed
> 0 let sleep
)"},
    {"ends without a display", R"(
record 0 shutdown
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
ready 1
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 no-display 10
> 10 update 1 Recording 0..10 partial no-display file1
> 10 tell ended
> 10 let sleep
)"},
};

constexpr Story FailuresStories[] = {
    {"is prepared anew at once after a death, and later after more", R"(
task A 100 60
at 91
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
died 1
> 91 tell failed A goes on
> 91 prepare 2 A screen 0 of 100
at 92
died 2
> 92 let sleep
at 94
> 94 prepare 3 A screen 0 of 100
> 94 hold awake
died 3
> 94 let sleep
at 99
> 98 prepare 4 A screen 0 of 100
> 98 hold awake
ready 4
> 99 start 4 at 100 for 60
at 100
recording 4
> 100 list 1 A 100..100 recording file4
> 100 tell started A
at 160
finished 4 duration 60
> 160 update 1 A 100..160 complete file4
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"is tried until its end, and has failed then", R"(
task A 100 60
at 90
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
failed 1 disk-full
> 90 tell failed A goes on
> 90 let sleep
failed 2 x
at 91
> 91 prepare 2 A screen 0 of 100
> 91 hold awake
failed 2 disk-full
> 91 let sleep
at 94
> 93 prepare 3 A screen 0 of 100
> 93 hold awake
failed 3 disk-full
> 94 let sleep
at 98
> 98 prepare 4 A screen 0 of 100
> 98 hold awake
failed 4 disk-full
> 98 let sleep
at 106
> 106 prepare 5 A screen 0 of 106
> 106 hold awake
failed 5 disk-full
> 106 let sleep
at 122
> 122 prepare 6 A screen 0 of 122
> 122 hold awake
failed 6 disk-full
> 122 let sleep
at 152
> 152 prepare 7 A screen 0 of 152
> 152 hold awake
failed 7 no-encoder
> 152 let sleep
at 170
> 160 list 1 A 100..160 failed no-encoder
> 160 tell failed A
> 160 remove A
)"},
    {"is recorded on when the recorder died in its midst", R"(
task A 100 60 0 shutdown
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 130
died 1 file1
> 130 update 1 A 100..130 partial recorder-died file1
> 130 tell failed A goes on
> 130 prepare 2 A screen 0 of 130
ready 2
> 130 start 2 now for 30
recording 2
> 130 list 2 A 130..130 recording file2
> 130 tell started A
at 160
finished 2 duration 30
> 160 update 2 A 130..160 partial rest file2
> 160 tell ended A
> 160 remove A
> 160 ask for shutdown
> 160 let sleep
)"},
    {"is recorded on when the program died in its midst", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 130
restart
> 130 prepare 1 A screen 0 of 130
> 130 hold awake
ready 1
> 130 start 1 now for 30
recording 1
> 130 list 2 A 130..130 recording file1
> 130 tell started A
at 160
finished 1 duration 30
> 160 update 2 A 130..160 partial rest file1
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"has had its recording when the program died and came back too late", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 200
> 162 stop 1
restart
> 200 remove A
)"},
    {"is not both stopped and recorded on", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 130
stop
> 130 stop 1
died 1 file1
> 130 update 1 A 100..130 stopped recorder-died file1
> 130 tell failed A
> 130 remove A
> 130 let sleep
at 170
)"},
    {"is kept as it is when it could not be converted", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 160.1
failed 1 remux file1.mkv
> 160.1 update 1 A 100..160.1 partial remux file1.mkv
> 160.1 tell failed A
> 160.1 remove A
> 160.1 let sleep
)"},
    {"ends when the disk is full, with its action", R"(
task A 100 60 0 sleep
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 130
finished 1 disk-low 30
> 130 update 1 A 100..130 partial disk-low file1
> 130 tell ended A
> 130 remove A
> 130 ask for sleep
> 130 let sleep
)"},
    {"is given up when the recorder never starts it", R"(
task A 100 60
at 160.1
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
> 160 cancel 1
cancelled 1
> 160.1 list 1 A 100..160 missed no-recorder
> 160.1 tell missed A
> 160.1 remove A
> 160.1 let sleep
)"},
    {"is not begun by a recorder that answers a cancelled one", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
delete A
> 100 cancel 1
recording 1
cancelled 1
> 100 let sleep
)"},
    {"is listed when it had finished before it could be cancelled", R"(
task A 100 60 0 shutdown
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
delete A
> 100 cancel 1
recording 1
at 100.5
finished 1 duration 0.5
> 100.5 list 1 A 100..100 recording file1
> 100.5 update 1 A 100..100.5 complete file1
> 100.5 tell ended A
> 100.5 let sleep
)"},
    {"is listed when it was not told to begin", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
at 160
> 160 cancel 1
finished 1 duration 60
> 160 list 1 A 100..100 recording file1
> 160 update 1 A 100..160 complete file1
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"is not both skipped and recorded", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
skip A
> 100 list 1 A 100..160 missed skipped
> 100 remove A
> 100 cancel 1
at 101
finished 1 disk-low 1
> 101 update 1 A 100..100 recording file1
> 101 update 1 A 100..101 stopped user file1
> 101 tell ended A
> 101 let sleep
)"},
    {"may fail or die while it is cancelled", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
delete A
> 95 cancel 1
failed 1 pipeline
> 95 let sleep
task B 200 60
at 195
> 190 prepare 2 B screen 0 of 200
> 190 tell starts soon B
> 190 hold awake
delete B
> 195 cancel 2
died 2
> 195 let sleep
status
> idle at rest
)"},
    {"has no action when it was stopped in its last moment", R"(
task A 100 60 0 shutdown
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 159.99
stop
> 159.99 stop 1
finished 1 duration 60
> 159.99 update 1 A 100..159.99 complete file1
> 159.99 tell ended A
> 159.99 remove A
> 159.99 let sleep
)"},
    {"knows no recording that is over", R"(
ready 7
recording 7
progress 7 1
warning 7
finished 7 duration 60
failed 7 busy
died 7
cancelled 7
status
> idle at rest
)"},
    {"passes a warning on", R"(
record 0
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
warning 1
> 0 tell warning no sound
)"},
};

constexpr Story ClockStories[] = {
    {"is dropped when the clock is set back before its time, and is told of again", R"(
task A 1000 60
at 995
> 990 prepare 1 A screen 0 of 1000
> 990 tell starts soon A
> 990 hold awake
ready 1
> 995 start 1 at 1000 for 60
clock 500
> 500 cancel 1
cancelled 1
> 500 let sleep
at 992
> 990 prepare 2 A screen 0 of 1000
> 990 tell starts soon A
> 990 hold awake
)"},
    {"starts anew when the clock is set while it is to start", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 95 start 1 at 100 for 60
clock 96
> 96 cancel 1
cancelled 1
> 96 prepare 2 A screen 0 of 100
ready 2
> 96 start 2 at 100 for 60
)"},
    {"is not disturbed by a clock that is adjusted", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 95 start 1 at 100 for 60
clock 95.01
at 100
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
)"},
    {"starts late when the clock is set into its time", R"(
task A 100 60
at 91
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
clock 130
ready 1
> 130 start 1 now for 30
recording 1
> 130 list 1 A 130..130 recording file1
> 130 tell started A
at 160
finished 1 duration 30
> 160 update 1 A 130..160 partial late file1
> 160 tell ended A
> 160 remove A
> 160 let sleep
)"},
    {"is missed when the clock is set beyond its end", R"(
task A 100 60
at 50
clock 500
> 500 list 1 A 100..160 missed clock-set
> 500 tell missed A
> 500 remove A
)"},
    {"is missed when the clock is set beyond its end while it is prepared", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
clock 500
> 500 cancel 1
cancelled 1
> 500 list 1 A 100..160 missed clock-set
> 500 tell missed A
> 500 remove A
> 500 let sleep
)"},
    {"keeps its length when the clock is set while it is recorded", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 110
clock 500
at 549.9
finished 1 duration 60
> 549.9 update 1 A 100..159.9 complete file1
> 549.9 tell ended A
> 549.9 remove A
> 549.9 let sleep
)"},
    {"keeps its length when the clock is set back while it is recorded", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 110
clock 10
at 60
finished 1 duration 60
> 60 update 1 A 100..160 complete file1
> 60 tell ended A
> 60 remove A
> 60 let sleep
status
> idle at rest
)"},
    {"is cut by what the machine slept in its time", R"(
task A 100 60 0 shutdown
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 110
sleep 140
at 170
> 162 stop 1
finished 1 stopped 32
> 170 update 1 A 100..170 partial suspended file1
> 170 tell ended A
> 170 remove A
> 170 let sleep
)"},
    {"was prepared when the machine began to sleep, and is late", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
sleep 130
ready 1
> 130 start 1 now for 30
recording 1
> 130 list 1 A 130..130 recording file1
> 130 tell started A
)"},
    {"was prepared when the machine began to sleep, and is missed", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
sleep 200
> 200 cancel 1
cancelled 1
> 200 list 1 A 100..160 missed suspended
> 200 tell missed A
> 200 remove A
> 200 let sleep
)"},
};

constexpr Story ActionsStories[] = {
    {"counts down after a complete recording, and acts", R"(
task A 100 60 0 shutdown
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 160
finished 1 duration 60
> 160 update 1 A 100..160 complete file1
> 160 tell ended A
> 160 remove A
> 160 ask for shutdown
> 160 let sleep
answer shutdown yes
> 160 tell countdown to shutdown 220
status
> countdown shutdown 220 at rest
at 219.9
status
> countdown shutdown 220 at rest
at 230
> 220 perform shutdown
)"},
    {"quits at once", R"(
task A 100 60 0 quit
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 160
finished 1 duration 60
> 160 update 1 A 100..160 complete file1
> 160 tell ended A
> 160 remove A
> 160 perform quit
> 160 let sleep
)"},
    {"quits although a task follows at once", R"(
task A 100 60 0 quit
task B 160 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 160
> 150 prepare 2 B screen 0 of 160
> 150 tell starts soon B
ready 2
finished 1 duration 60
> 160 update 1 A 100..160 complete file1
> 160 tell ended A
> 160 remove A
> 160 perform quit
> 160 start 2 now for 60
)"},
    {"counts down as long as it is set to", R"(
countdown 5
record 10 hibernate
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for hibernate
> 10 let sleep
answer hibernate yes
> 10 tell countdown to hibernate 15
at 100
> 15 perform hibernate
)"},
    {"acts at once when the countdown has no length", R"(
countdown 0
record 10 restart
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for restart
> 10 let sleep
answer restart yes
> 10 tell countdown to restart 10
> 10 perform restart
)"},
    {"says when an action is not possible", R"(
record 10 sleep
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for sleep
> 10 let sleep
answer restart no
answer sleep no
> 10 tell refused sleep
answer sleep yes
at 200
)"},
    {"says when an action was refused", R"(
refused restart
> 0 tell refused restart as it is
)"},
    {"is cancelled in its countdown", R"(
record 10 sleep
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for sleep
> 10 let sleep
answer sleep yes
> 10 tell countdown to sleep 70
cancel
at 200
status
> idle at rest
)"},
    {"acts when the user does not want to wait", R"(
record 10 sleep
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for sleep
> 10 let sleep
now
answer sleep yes
> 10 tell countdown to sleep 70
at 20
now
> 20 perform sleep
now
)"},
    {"is cancelled by a task that is added", R"(
record 10 sleep
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for sleep
> 10 let sleep
answer sleep yes
> 10 tell countdown to sleep 70
at 20
task A 400 60
> 20 tell skipped sleep A
at 200
)"},
    {"is cancelled by a task that comes near in a long countdown", R"(
countdown 3600
task A 700 60
record 10 sleep
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for sleep
> 10 let sleep
answer sleep yes
> 10 tell countdown to sleep 3610
at 695
> 100 tell skipped sleep A
> 690 prepare 2 A screen 0 of 700
> 690 tell starts soon A
> 690 hold awake
)"},
    {"is skipped when a task starts within ten minutes", R"(
task A 610 60
record 10 restart
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 tell skipped restart A
> 10 let sleep
)"},
    {"is done when a task starts in more than ten minutes", R"(
task A 611 60
record 10 restart
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for restart
> 10 let sleep
)"},
    {"is done when no task is to run", R"(
off
task A 100 60
record 10 restart
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for restart
> 10 let sleep
)"},
    {"is skipped before a task that follows at once", R"(
task A 100 60 0 shutdown
task B 160 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 160
> 150 prepare 2 B screen 0 of 160
> 150 tell starts soon B
ready 2
finished 1 duration 60
> 160 update 1 A 100..160 complete file1
> 160 tell ended A
> 160 remove A
> 160 tell skipped shutdown B
> 160 start 2 now for 60
)"},
    {"is cancelled by a recording by hand", R"(
record 10 sleep
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for sleep
> 10 let sleep
answer sleep yes
> 10 tell countdown to sleep 70
record 0
> 10 prepare 2 by hand of 10
> 10 start 2 now for 0
> 10 hold awake
at 200
)"},
    {"is cancelled by sleep", R"(
record 10 restart
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for restart
> 10 let sleep
answer restart yes
> 10 tell countdown to restart 70
sleeping
sleep 1000
)"},
    {"is not done after a task that was missed or has failed", R"(
task A 100 60 0 shutdown
sleep 200
> 200 list 1 A 100..160 missed suspended
> 200 tell missed A
> 200 remove A
task B 300 60 0 shutdown
at 300
> 290 prepare 1 B screen 0 of 300
> 290 tell starts soon B
> 290 hold awake
failed 1 disk-full
> 300 tell failed B goes on
> 300 let sleep
at 301
> 301 prepare 2 B screen 0 of 301
> 301 hold awake
failed 2 disk-full
> 301 let sleep
at 303
> 303 prepare 3 B screen 0 of 303
> 303 hold awake
failed 3 disk-full
> 303 let sleep
at 307
> 307 prepare 4 B screen 0 of 307
> 307 hold awake
failed 4 disk-full
> 307 let sleep
at 315
> 315 prepare 5 B screen 0 of 315
> 315 hold awake
failed 5 disk-full
> 315 let sleep
at 331
> 331 prepare 6 B screen 0 of 331
> 331 hold awake
failed 6 disk-full
> 331 let sleep
at 500
> 360 list 2 B 300..360 failed disk-full
> 360 tell failed B
> 360 remove B
)"},
    {"is not done after a recording that died", R"(
record 0 shutdown
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
stop
> 10 stop 1
died 1 file1
> 10 update 1 Recording 0..10 stopped recorder-died file1
> 10 tell failed
> 10 let sleep
)"},
};

constexpr Story EndsStories[] = {
    {"closes a recording before the machine is shut down", R"(
task A 100 60 0 sleep
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 130
shutdown yes
> 130 stop 1
finished 1 stopped 30
> 130 update 1 A 100..130 partial shut-down file1
> 130 tell ended A
> 130 remove A
> 130 let sleep
status
> idle at rest
)"},
    {"drops what is prepared before the machine is shut down, and prepares it again if it is not",
     R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
shutdown yes
> 95 cancel 1
cancelled 1
> 95 let sleep
at 98
record 0
> no
shutdown no
> 98 prepare 2 A screen 0 of 100
> 98 hold awake
ready 2
> 98 start 2 at 100 for 60
at 100
recording 2
> 100 list 1 A 100..100 recording file2
> 100 tell started A
)"},
    {"cancels a countdown when the machine is shut down", R"(
record 10 sleep
> 0 prepare 1 by hand of 0
> 0 start 1 now for 10
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
finished 1 duration 10
> 10 update 1 Recording 0..10 complete file1
> 10 tell ended
> 10 ask for sleep
> 10 let sleep
answer sleep yes
> 10 tell countdown to sleep 70
shutdown yes
at 200
)"},
    {"closes a recording when the program leaves", R"(
record 0 shutdown
> 0 prepare 1 by hand of 0
> 0 start 1 now for 0
> 0 hold awake
recording 1
> 0 list 1 Recording 0..0 recording file1
at 10
leave
> 10 stop 1
status
> closing from 0
finished 1 stopped 10
> 10 update 1 Recording 0..10 stopped user file1
> 10 tell ended
> 10 let sleep
status
> idle at rest
)"},
    {"drops what is prepared when the program leaves, and leaves the task", R"(
task A 100 60
at 95
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
leave
> 95 cancel 1
cancelled 1
> 95 let sleep
status
> idle at rest next A
at 200
)"},
    {"ends a task when the program leaves", R"(
task A 100 60
at 100
> 90 prepare 1 A screen 0 of 100
> 90 tell starts soon A
> 90 hold awake
ready 1
> 100 start 1 now for 60
recording 1
> 100 list 1 A 100..100 recording file1
> 100 tell started A
at 130
leave
> 130 stop 1
finished 1 stopped 30
> 130 update 1 A 100..130 stopped user file1
> 130 tell ended A
> 130 remove A
> 130 let sleep
)"},
};

template <std::size_t Count> void AddRows(const char* topic, const Story (&stories)[Count])
{
    for (const Story& story : stories) {
        QTest::addRow("%s: %s", topic, story.name) << QString::fromUtf8(story.text);
    }
}

} // namespace

class tst_ScheduleRunner : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void doesWhatTheStorySays_data();
    void doesWhatTheStorySays();
    void wakesNobodyBetweenTasks();
};

void tst_ScheduleRunner::doesWhatTheStorySays_data()
{
    QTest::addColumn<QString>("text");
    AddRows("tasks", TasksStories);
    AddRows("by hand", ByHandStories);
    AddRows("failures", FailuresStories);
    AddRows("clock", ClockStories);
    AddRows("actions", ActionsStories);
    AddRows("ends", EndsStories);
}

void tst_ScheduleRunner::doesWhatTheStorySays()
{
    QFETCH(QString, text);
    const QStringList story = text.split('\n', Qt::SkipEmptyParts);
    const QStringList played = RunnerStory().Play(story);
    if (played != story) {
        QFAIL(qPrintable("it was\n" + played.join('\n') + "\n"));
    }
}

/// 100 tasks in a week, on a machine with nothing else to do.
void tst_ScheduleRunner::wakesNobodyBetweenTasks()
{
    constexpr int taskCount = 100;
    constexpr int distance = 6000;
    RunnerStory story;
    QStringList lines;
    for (int task = 1; task <= taskCount; ++task) {
        lines << QStringLiteral("task T%1 %2 60").arg(task).arg(task * distance);
    }
    for (int task = 1; task <= taskCount; ++task) {
        lines << QStringLiteral("at %1").arg(task * distance - 5)
              << QStringLiteral("ready %1").arg(task)
              << QStringLiteral("at %1").arg(task * distance)
              << QStringLiteral("recording %1").arg(task)
              << QStringLiteral("at %1").arg(task * distance + 60)
              << QStringLiteral("finished %1 duration 60").arg(task);
    }
    lines << "wakes";
    // Each is woken for its preparation, and for nothing else.
    QCOMPARE(story.Play(lines).last(), QStringLiteral("> %1").arg(taskCount));
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ScheduleRunner)

#include "tst_ScheduleRunner.moc"
