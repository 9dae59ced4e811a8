# Completion for bash: the parameters of zepholt with their values, the commands and options of zepholt-bericht.

# _zepholt_werte WORD...: offers words for the value in $cur. What bash replaces begins behind the "=", unless it is told
# not to break words there.
_zepholt_werte() {
    local vorn=""
    [[ $COMP_WORDBREAKS == *=* ]] || vorn=$schluessel=
    mapfile -t COMPREPLY < <(compgen -P "$vorn" -W "$*" -- "$cur")
}

# The parameters that don't stand on the line yet.
_zepholt_schluessel() {
    local offen="" name wort
    for name in file dialog errorfile catalog mode; do
        for wort in "${words[@]:1}"; do
            [[ ${wort,,} == "$name="* ]] && continue 2
        done
        offen+="$name= "
    done
    compopt -o nospace
    mapfile -t COMPREPLY < <(compgen -W "$offen" -- "${cur,,}")
}

_zepholt() {
    local cur prev words cword schluessel
    _init_completion -n = || return
    if [[ $cur != *=* ]]; then
        _zepholt_schluessel
        return
    fi
    schluessel=${cur%%=*}
    cur=${cur#*=}
    case ${schluessel,,} in
    file) _filedir '@(01s|e1s|01S|E1S)' ;;
    dialog) _zepholt_werte de fr it de- fr- it- ;;
    errorfile) _filedir xml ;;
    catalog) _filedir ;;
    mode) _zepholt_werte E I ;;
    esac
}

_zepholt_bericht() {
    local cur prev words cword split schluessel=""
    _init_completion -s || return
    case $prev in
    -l | --language) _zepholt_werte de fr it ;;
    -m | --mode) _zepholt_werte E I ;;
    -c | --catalog | -o | --output) _filedir ;;
    -*) split=false ;;&
    *)
        [[ $split == true ]] && return
        if [[ $cur == -* ]]; then
            mapfile -t COMPREPLY < <(compgen -W "--output= --language= --test --catalog= --mode= --jobs= --window --help
                --version" -- "$cur")
            [[ ${COMPREPLY[0]-} == *= ]] && compopt -o nospace
        elif ((cword == 1)); then
            mapfile -t COMPREPLY < <(compgen -W "html table csv jsonl sarif verdict batch summary code fields
                test" -- "$cur")
        else
            _filedir '@(xml|01s|e1s|01S|E1S)'
        fi
        ;;
    esac
}

complete -F _zepholt zepholt
complete -F _zepholt_bericht zepholt-bericht
