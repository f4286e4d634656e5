# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Tells the steps of a script apart, and how long each took. Sourced by ./test.
#
#   step <name>       says that a step begins
#   table_of_steps    prints the time that each took, the last one up to now

step_names=()
step_times=()

# Seconds of the clock, and of the processors in the commands that have ended: "<seconds> <seconds>".
used_so_far() {
    printf '%s ' "$EPOCHREALTIME"
    # The second line is about the commands: 1m2.345s of the user's and as much of the system's.
    awk 'NR == 2 { split($1, user, /[ms]/); split($2, kernel, /[ms]/)
                   print 60 * (user[1] + kernel[1]) + user[2] + kernel[2] }' "$1"
}

note_time() {
    local times_file
    times_file=$(mktemp)
    # In this shell: a subshell has no commands of its own to tell about.
    times >"$times_file"
    step_times+=("$(used_so_far "$times_file")")
    rm -f "$times_file"
}

step() {
    note_time
    step_names+=("$*")
    printf '\n== %s\n' "$*"
}

table_of_steps() {
    local index
    note_time
    printf '\n%-24s %10s %14s\n' "Step" "seconds" "of processors"
    for index in "${!step_names[@]}"; do
        printf '%s %s %s\n' "${step_times[index]}" "${step_times[index + 1]}" "${step_names[index]}"
    done | awk '{ wall = $3 - $1; busy = $4 - $2; wall_sum += wall; busy_sum += busy
                  $1 = $2 = $3 = $4 = ""; sub(/^ +/, ""); printf "%-24s %10.1f %14.1f\n", $0, wall, busy }
                END { printf "%-24s %10.1f %14.1f\n", "All", wall_sum, busy_sum }'
    echo
}
