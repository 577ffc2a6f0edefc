# SPDX-License-Identifier: MIT
# bash completion for lumora. A new command gets a line in `options`, and in `_lumora` a case for each option that takes
# one of a few words.

_lumora_options() {
  case $1 in
    icons) echo "--platform --to --json --help" ;;
    icon) echo "--size --to --corners --json --help" ;;
    placeholders) echo "--set --size --to --json --help" ;;
    downscale) echo "--to --json --dry-run --overwrite --help" ;;
    color) echo "--as --json --help" ;;
    devices) echo "--ios --feature --json --help" ;;
    validate) echo "--json --icon --help" ;;
    *) echo "icons icon placeholders downscale color devices validate --help --version" ;;
  esac
}

_lumora_words() {
  mapfile -t COMPREPLY < <(compgen -W "$1" -- "$2")
}

# A list separated by commas: what comes before the last comma is kept.
_lumora_list() {
  local before=""
  [[ $2 == *,* ]] && before=${2%,*},
  mapfile -t COMPREPLY < <(compgen -P "$before" -W "$1" -- "${2##*,}")
}

_lumora() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=""
  ((COMP_CWORD > 1)) && command=${COMP_WORDS[1]}
  compopt +o filenames 2>/dev/null
  case $command:$previous in
    *:--to)
      compopt -o filenames
      mapfile -t COMPREPLY < <(compgen -d -- "$word")
      return
      ;;
    icons:--platform) _lumora_list "iphone ipad mac android web-touch favicon all" "$word" ;;
    icon:--corners) _lumora_words "none ios6 ios7" "$word" ;;
    placeholders:--set) _lumora_words "ios mac" "$word" ;;
    color:--as) _lumora_words "hex ios mac rgb css all" "$word" ;;
    devices:--ios) _lumora_words "4 5 6 7" "$word" ;;
    devices:--feature)
      _lumora_words "retina multitask siri video_rec compass gyroscope gps back_cam front_cam flash_cam bluetooth_le
        opengl_2 opengl_3" "$word"
      ;;
    *:--size) COMPREPLY=() ;;
    *)
      if [[ $word == -* || -z $command ]]; then
        _lumora_words "$(_lumora_options "$command")" "$word"
        [[ $word == -* || ${#COMPREPLY[@]} -gt 0 ]] && return
      fi
      compopt -o filenames
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      ;;
  esac
}

complete -F _lumora lumora
