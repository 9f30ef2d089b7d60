# Completion of velmar-values for bash.
_velmar_values() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} word command=
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $word in find | show | values | properties | compare | sheet | card | export) command=$word ;; esac
    done
    case $previous in
    --database | --xlsx) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
    --format) mapfile -t COMPREPLY < <(compgen -W "table csv tsv json" -- "$current"); return ;;
    --system) mapfile -t COMPREPLY < <(compgen -W "EN SS ASME" -- "$current"); return ;;
    --for) mapfile -t COMPREPLY < <(compgen -W "calculix mapdl" -- "$current"); return ;;
    --units) mapfile -t COMPREPLY < <(compgen -W "si mm" -- "$current"); return ;;
    --yield) mapfile -t COMPREPLY < <(compgen -W "Rp02 Rp10" -- "$current"); return ;;
    --at | --standard | --name | --number | --group | --product-form | --poisson | --density | --thickness | \
        --where | --from | --to | --step | --property) return ;;
    esac
    local words="--database --format --xlsx --help --version"
    case $command in
    "") words+=" find show values properties compare sheet card export" ;;
    find) words+=" --standard --name --number --group --product-form --system --where" ;;
    show) words+=" Ref ChemComp MechProp ImpEnergy Rp02 Rp10 Rm ModElast ThermExp ThermCond SpecThermCap
        SpecElecRes CreepProp AddInfo" ;;
    values) words+=" --at" ;;
    compare) words+=" --at --thickness --composition" ;;
    sheet) words+=" --from --to --step --property" ;;
    card) words+=" --for --units --poisson --density --yield --thickness" ;;
    export) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -F _velmar_values velmar-values
