# Completion of qdf command lines for bash. It knows the words by itself and never runs qdf.

# The files or folders that begin with the word, seen from a folder.
_qdf_paths() { # f or d, FOLDER, WORD
  (cd -- "$2" 2>/dev/null && compgen "-$1" -- "$3")
}

# Documents by bare name, as they lie in OutputDrivers, and whatever has a path.
_qdf_documents() { # FOLDER, WORD
  [[ $2 == */* ]] || _qdf_paths f "$1/OutputDrivers" "$2" | grep '\.qdf$'
  _qdf_paths f "$1" "$2"
}

# Sets the options of a command, and what each of its arguments is. Where there may be any number of
# the first kind, the next argument is always one of these.
_qdf_grammar() { # COMMAND
  case $1 in
    "") options="-C --help --version" arguments=(commands) ;;
    show) options="--list" arguments=(documents) ;;
    narrow)
      options="--ink --media --print-mode --resolution --color-mode --source --size --defaults"
      options+=" --why"
      arguments=(documents)
      ;;
    tree) options="--depth" arguments=(documents) ;;
    diff) arguments=(documents documents) ;;
    check)
      options="--ignore --werror --write-loss --host --format"
      arguments=(documents) places=0
      ;;
    localise) options="--output --untranslated" arguments=(documents) ;;
    media) options="--set-name --set-profile --add-profile --remove" arguments=(documents) ;;
    options) arguments=(files files) ;;
    write) arguments=(documents files) ;;
    resources) arguments=(folders) ;;
    update) options="--dry-run --no-backup" arguments=(documents folders) ;;
    sweep) options="--dry-run --yes" arguments=(folders) ;;
  esac
  [[ -z $1 ]] || options+=" --json --help"
}

# Sets what the value of an option is; empty for an option without one.
_qdf_value() { # OPTION
  case $1 in
    -C) value=folders ;;
    -o | --output) value=files ;;
    --list) value=lists ;;
    --format) value=formats ;;
    --depth | --ink | --media | --print-mode | --resolution | --color-mode | --source | --size) ;&
    --set-name | --set-profile | --add-profile | --remove | --ignore) value=unknown ;;
    *) value= ;;
  esac
}

_qdf() {
  # Bash takes words apart at "=".
  local words=() piece joined=
  for piece in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
    if [[ ($piece == "=" || $joined) && ${#words[@]} -gt 0 ]]; then
      words[-1]+=$piece
    else
      words+=("$piece")
    fi
    if [[ $piece == "=" ]]; then joined=yes; else joined=; fi
  done

  local word=${words[-1]} folder=. command='' places=0 value='' i
  for ((i = 0; i < ${#words[@]} - 1; ++i)); do
    piece=${words[i]}
    _qdf_value "$piece"
    if [[ $value ]]; then
      ((++i == ${#words[@]} - 1)) && break
      if [[ $piece == -C && ${words[i]} == /* ]]; then folder=${words[i]}; fi
      if [[ $piece == -C && ${words[i]} != /* ]]; then folder+=/${words[i]}; fi
      value=
    elif [[ $piece == -* ]]; then
      continue
    elif [[ $command ]]; then
      ((++places))
    else
      command=$piece
    fi
  done
  if [[ -z $value && $word == --*=* ]]; then
    _qdf_value "${word%%=*}"
    word=${word#*=}
  fi

  local options='' arguments=() lists commands
  commands="show narrow tree check diff localise media options write resources update sweep"
  lists="inks media print-modes resolutions color-modes media-sources media-sizes margins"
  _qdf_grammar "$command"
  if [[ -z $value && $word == -* ]]; then value=options; fi
  mapfile -t COMPREPLY < <(
    case ${value:-${arguments[places]}} in
      options) compgen -W "$options" -- "$word" ;;
      commands) compgen -W "$commands" -- "$word" ;;
      lists) compgen -W "$lists" -- "$word" ;;
      formats) compgen -W "text json sarif" -- "$word" ;;
      documents) _qdf_documents "$folder" "$word" ;;
      files) _qdf_paths f "$folder" "$word" ;;
      folders) _qdf_paths d "$folder" "$word" ;;
    esac
  )
  case ${value:-${arguments[places]}} in
    documents | files | folders) compopt -o filenames 2>/dev/null ;;
  esac
}

complete -F _qdf qdf
