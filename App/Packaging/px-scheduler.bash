# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Completion of px-scheduler for bash.
_px_scheduler() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $previous in
        --settings)
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            return ;;
        --screenshots)
            mapfile -t COMPREPLY < <(compgen -d -- "$current")
            return ;;
        --theme)
            mapfile -t COMPREPLY < <(compgen -W "light dark" -- "$current")
            return ;;
        --language)
            mapfile -t COMPREPLY < <(
                compgen -W "en de fr es it pt_BR pl ru tr ja ko zh_CN ar he" -- "$current")
            return ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "--settings --language --theme --hidden --start --stop
        --pause --quit --screenshots --help --version" -- "$current")
}
complete -o filenames -F _px_scheduler px-scheduler
