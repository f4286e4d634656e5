# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Completion of px-recorder for bash.
_px_recorder() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $previous in
        --file | --picture | --repair)
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            return ;;
        --quality)
            mapfile -t COMPREPLY < <(compgen -W "small normal high" -- "$current")
            return ;;
        --source)
            mapfile -t COMPREPLY < <(compgen -W "x11 portal test" -- "$current")
            return ;;
        --encoder)
            mapfile -t COMPREPLY < <(
                compgen -W "vah264enc vah264lpenc x264enc vp9enc openh264enc" -- "$current")
            return ;;
        --screen | --area | --fps | --duration | --sound | --reserve)
            return ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "--file --screen --area --source --fps --duration --sound
        --mix --encoder --quality --no-pointer --reserve --lines --levels --picture --probe --repair
        --help --version" \
        -- "$current")
}
complete -o filenames -F _px_recorder px-recorder
