# Completes the words of tarnwick in bash.

_tarnwick() {
  local word=${COMP_WORDS[COMP_CWORD]}
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W '--help --version' -- "$word")
    return
  fi
  compopt -o filenames
  mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.@(twp|java|class|jar)' -- "$word")
}

complete -F _tarnwick tarnwick
