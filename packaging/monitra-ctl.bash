# Completion of monitra-ctl for bash.

_monitra_ctl() {
  local current=$2 previous=$3 command= word options= words= files=
  local sending="--port --lpt --pcb --yes"
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    case $word in
      show | diff | upload | off | frame | ports | decode) command+=$word && break ;;
      firmware) command=firmware- ;;
      verify | patch) [ -z "$command" ] || { command+=$word && break; } ;;
    esac
  done
  COMPREPLY=()
  case $previous in
    --port) words="auto kernel raw sim" ;;
    --lpt) words="378 278 3BC" ;;
    --pcb) words="32 40" ;;
    --vcd | --compare) files=vcd ;;
    --spm | --data | --clock) return ;;
    *)
      case $command in
        "") words="show diff upload off frame ports firmware decode" options="--version" ;;
        show) files=pwm options="--spm --json" ;;
        diff) files="pwm|hex" options="--json" ;;
        upload) files=pwm options="$sending --vcd --force" ;;
        off) options=$sending ;;
        frame)
          options=$sending words="l1 l2 l3 l4 ki"
          [ "$previous" != frame ] || words="x y z"
          ;;
        ports) options="--json" ;;
        decode) files=vcd options="--data --clock --pcb --compare --json" ;;
        firmware-) words="show patch verify" ;;
        firmware-show) files=hex options="--json" ;;
        firmware-verify) files=hex ;;
        firmware-patch) files="hex|pwm" ;;
      esac
      ;;
  esac
  if [[ $current == -* ]]; then
    words="$options --help"
    files=
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  if [ -n "$files" ]; then
    compopt -o filenames
    local extglob
    extglob=$(shopt -p extglob)
    shopt -s extglob
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(
      compgen -d -- "$current"
      compgen -f -X "!*.@($files|${files^^})" -- "$current"
    )
    $extglob
  fi
}
complete -F _monitra_ctl monitra-ctl
