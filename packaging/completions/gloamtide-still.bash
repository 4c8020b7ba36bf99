# Completion of gloamtide-still for bash.
_gloamtide_still() {
    local Word=${COMP_WORDS[COMP_CWORD]} Before=${COMP_WORDS[COMP_CWORD - 1]} Names='' Last
    local Shown='sun moon analemma cities city-names grid timezones sundial twilight twilight-lines'
    COMPREPLY=()
    case $Before in
        --map) Names='natural political terrain' ;;
        --step) Names='90s 15min 1h 1d 1y' ;;
        --rate) Names='12 24 30' ;;
        --size) Names='1280x720 1920x1080 2560x1440 3840x2160' ;;
        --screen-width) Names='640 800 1024 1280' ;;
        --scale) Names='1 1.5 2 3' ;;
        --at | --until | --place) return ;;
        --config)
            mapfile -t COMPREPLY < <(compgen -f -X '!*.gtf' -- "$Word" && compgen -d -- "$Word")
            return
            ;;
        --show | --hide)
            Last=${Word##*,}
            mapfile -t COMPREPLY < <(compgen -P "${Word%"$Last"}" -W "$Shown" -- "$Last")
            compopt -o nospace
            return
            ;;
        *)
            if [[ $Word == -* ]]; then
                Names='--at --until --step --rate --yes --progress --config --place --map --show --hide --only-map
                    --size --screen-width --scale --almanac --json --help --version'
            else
                mapfile -t COMPREPLY < <(compgen -f -- "$Word")
                return
            fi
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$Names" -- "$Word")
}
complete -o filenames -F _gloamtide_still gloamtide-still
