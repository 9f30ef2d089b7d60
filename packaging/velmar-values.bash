# Completion of velmar-values for bash.
_velmar_values() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} word command=
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $word in find | show | values | export) command=$word ;; esac
    done
    case $previous in
    --database) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
    --format) mapfile -t COMPREPLY < <(compgen -W "table csv tsv json" -- "$current"); return ;;
    --system) mapfile -t COMPREPLY < <(compgen -W "EN SS ASME" -- "$current"); return ;;
    --at | --standard | --name | --number | --group | --product-form) return ;;
    esac
    local words="--database --format --help --version"
    case $command in
    "") words+=" find show values export" ;;
    find) words+=" --standard --name --number --group --product-form --system" ;;
    show) words+=" Ref ChemComp MechProp ImpEnergy Rp02 Rp10 Rm ModElast ThermExp ThermCond SpecThermCap
        SpecElecRes CreepProp AddInfo" ;;
    values) words+=" --at" ;;
    export) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -F _velmar_values velmar-values
