# SPDX-License-Identifier: MIT
# bash completion for lumora. A new command gets a line in `_lumora_options` and, for operands, in `_lumora_operands`; a
# new option that takes one of a few words gets a line in `_lumora_values`.

_lumora_general="--json --quiet --verbose --help --version"
_lumora_tools="icons placeholders resizer color devices validator"

# The name of the command that a word means; a tool's name also means its command.
_lumora_command() {
  case $1 in
    icons | icon | placeholders | downscale | color | devices | validate | diff | rules | help | version) echo "$1" ;;
    resizer) echo downscale ;;
    validator) echo validate ;;
  esac
}

_lumora_options() {
  case $1 in
    icons)
      echo "--example --platform --to --out --name --dark --tinted --foreground --background --monochrome --layer --flatten" \
        "--fit --ios-form --mac-full-bleed --into --dry-run --flavor --target --check $_lumora_general"
      ;;
    icon) echo "--example --size --corners --to --out --output $_lumora_general" ;;
    placeholders) echo "--set --size --text --foreground --background --format --quality --check --to --out $_lumora_general" ;;
    downscale) echo "--overwrite --dry-run --layout --from --to-scales --format --quality --to --out $_lumora_general" ;;
    color) echo "--as --form --all --p3 --contrast $_lumora_general" ;;
    devices)
      echo "--ios --feature --today --family --chip --capability --screen --biometry --with --search --model --data --csv" \
        "$_lumora_general"
      ;;
    validate) echo "--icon --rules --fail-on --ignore --ignore-file --on --sarif --junit --html --devices --no-sandbox $_lumora_general" ;;
    diff) echo "--fail-on --on --no-sandbox $_lumora_general" ;;
    rules) echo "--markdown $_lumora_general" ;;
    help | version) ;;
    *) echo "--tool --today $_lumora_general" ;;
  esac
}

# The values of an option: words, "list:" and words, "folder", "file" or "none"; empty for a flag.
_lumora_values() {
  case $1:$2 in
    *:--to | *:--out) echo folder ;;
    icon:--output | icon:-o | validate:--icon | validate:--ignore-file | validate:--sarif | validate:--junit | validate:--html) echo file ;;
    icons:--platform)
      echo "list:iphone ipad mac android web-touch favicon all ios macos watchos adaptive web windows linux tvos visionos" \
        "icon-composer today"
      ;;
    icons:--into | icons:--check) echo folder ;;
    icons:--dark | icons:--tinted | icons:--foreground | icons:--background | icons:--monochrome | icons:--layer)
      echo file
      ;;
    icons:--ios-form) echo "one-size sizes" ;;
    icons:--name | icons:--flatten | icons:--flavor | icons:--target) echo anything ;;
    icon:--corners) echo "none ios6 ios7" ;;
    placeholders:--set) echo "list:ios mac app-store play feature-graphic tv watch social launch" ;;
    placeholders:--check) echo folder ;;
    placeholders:--format) echo "png webp svg" ;;
    downscale:--format) echo "png webp" ;;
    downscale:--layout) echo "ios android flutter react-native web" ;;
    downscale:--from) echo "1.5x 2x 3x 4x hdpi xhdpi xxhdpi xxxhdpi svg" ;;
    downscale:--to-scales) echo "list:1x 1.5x 2x 3x 4x ldpi mdpi tvdpi hdpi xhdpi xxhdpi xxxhdpi" ;;
    color:--form)
      echo "list:swiftui uikit-swift uikit-objc appkit-swift appkit-objc colorset compose flutter android-xml kotlin" \
        "css-hex css-rgb css-hsl css-hwb css-oklch css-p3 maui tailwind qml"
      ;;
    devices:--family) echo "list:iphone ipad ipod" ;;
    devices:--capability) echo "list:armv7 arm64 metal arkit iphone-ipad-minimum-performance-a12 iphone-performance-gaming-tier" ;;
    devices:--screen) echo "list:6.9 6.5 6.3 6.1 5.5 4.7 4 3.5 13 11 10.5 9.7" ;;
    devices:--biometry) echo "list:none touchid faceid" ;;
    devices:--with) echo "list:dynamic-island lidar usb-c 5g" ;;
    devices:--data) echo file ;;
    color:--as) echo "hex ios mac rgb css all" ;;
    devices:--ios) echo "4 5 6 7" ;;
    devices:--feature)
      echo "list:retina multitask siri video_rec compass gyroscope gps back_cam front_cam flash_cam bluetooth_le" \
        "opengl_2 opengl_3"
      ;;
    validate:--rules) echo "auto store classic all" ;;
    validate:--fail-on | diff:--fail-on) echo "error warning never" ;;
    icon:--size | placeholders:--size | *:--quality | *:--text | *:--foreground | *:--background) echo anything ;;
    color:--contrast | validate:--ignore | validate:--on | diff:--on | devices:--chip | devices:--search | devices:--model) echo anything ;;
    :--tool) echo "$_lumora_tools" ;;
  esac
}

# The endings of a command's files, as an extended pattern.
_lumora_operands() {
  case $1 in
    icons) echo "@(png|jpg|jpeg|tif|tiff|webp|bmp|gif|icns|svg)" ;;
    icon) echo "@(png|jpg|jpeg|tif|tiff|webp|bmp|gif|icns)" ;;
    downscale) echo "png" ;;
    validate | diff) echo "ipa" ;;
    "") echo "@(png|jpg|jpeg|tif|tiff|webp|bmp|gif|icns|ipa)" ;;
  esac
}

# Each line of its arguments becomes one completion, so that names may contain spaces.
_lumora_offer() {
  local offer
  COMPREPLY=()
  while IFS= read -r offer; do
    [[ -n $offer ]] && COMPREPLY+=("$offer")
  done
}

_lumora_words() {
  _lumora_offer < <(compgen -W "$1" -- "$2")
}

# A list separated by commas: the part before the last comma is kept.
_lumora_list() {
  local before=""
  [[ $2 == *,* ]] && before=${2%,*},
  _lumora_offer < <(compgen -P "$before" -W "$1" -- "${2##*,}")
  compopt -o nospace 2>/dev/null
}

_lumora_folders() {
  compopt -o filenames 2>/dev/null
  _lumora_offer < <(compgen -d -- "$1")
}

# Folders, and files with one of the endings in lower or upper case.
_lumora_files() {
  local name endings=$1 restore
  restore=$(shopt -p extglob nocasematch)
  shopt -s extglob nocasematch
  compopt -o filenames 2>/dev/null
  COMPREPLY=()
  while IFS= read -r name; do
    [[ -d $name || -z $endings || $name == *.$endings ]] && COMPREPLY+=("$name")
  done < <(compgen -f -- "$2")
  eval "$restore"
}

_lumora_value() {
  case $1 in
    folder) _lumora_folders "$2" ;;
    file) _lumora_files "" "$2" ;;
    anything) COMPREPLY=() ;;
    list:*) _lumora_list "${1#list:}" "$2" ;;
    *) _lumora_words "$1" "$2" ;;
  esac
}

_lumora() {
  local word previous command="" values
  # bash splits "--tool=ic" at the equals sign; here it becomes one word again.
  word=${COMP_WORDS[COMP_CWORD]}
  previous=${COMP_WORDS[COMP_CWORD - 1]}
  ((COMP_CWORD > 1)) && command=$(_lumora_command "${COMP_WORDS[1]}")
  if [[ $word == "=" && $previous == --* ]]; then
    word=""
  elif [[ $previous == "=" ]]; then
    previous=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  COMPREPLY=()
  values=$(_lumora_values "$command" "$previous")
  if [[ -n $values ]]; then
    _lumora_value "$values" "$word"
  elif [[ $word == -* ]]; then
    _lumora_words "$(_lumora_options "$command")" "$word"
  elif ((COMP_CWORD == 1)); then
    _lumora_words "icons icon placeholders downscale color devices validate diff rules help version" "$word"
    ((${#COMPREPLY[@]} > 0)) || _lumora_files "$(_lumora_operands "")" "$word"
  elif [[ $command == help ]]; then
    _lumora_words "icons icon placeholders downscale color devices validate diff rules" "$word"
  elif [[ -n $(_lumora_operands "$command") ]]; then
    _lumora_files "$(_lumora_operands "$command")" "$word"
  fi
}

complete -F _lumora lumora
