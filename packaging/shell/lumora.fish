# SPDX-License-Identifier: MIT
# fish completion for lumora. A new command gets a line in the first block, its options a block of their own.

# Folders and the files with one of the endings, in lower or upper case. Otherwise fish would offer every file.
function __lumora_files
    __fish_complete_path (commandline -ct) | string match -r -i -- ".*(?:/|\.(?:"(string join '|' $argv)"))(?=\t|\$).*"
end

set -l writing icons icon placeholders downscale resizer
set -l every $writing color devices validate validator

complete -c lumora -f
complete -c lumora -n __fish_use_subcommand -a icons -d 'Write every icon of whole platforms'
complete -c lumora -n __fish_use_subcommand -a icon -d 'Write icons of sizes of your own'
complete -c lumora -n __fish_use_subcommand -a placeholders -d 'Write labelled grey pictures'
complete -c lumora -n __fish_use_subcommand -a downscale -d 'Halve double-resolution PNG pictures'
complete -c lumora -n __fish_use_subcommand -a color -d 'Print a colour as code'
complete -c lumora -n __fish_use_subcommand -a devices -d 'List the devices that can run an app'
complete -c lumora -n __fish_use_subcommand -a validate -d 'Check iOS app packages'
complete -c lumora -n __fish_use_subcommand -a help -d 'Explain the program or a command'
complete -c lumora -n __fish_use_subcommand -a version -d 'Print the version'
complete -c lumora -n __fish_use_subcommand -a '(__lumora_files png jpg jpeg tif tiff webp bmp gif icns ipa)'
complete -c lumora -n __fish_use_subcommand -l tool -x -a 'icons placeholders resizer color devices validator' -d 'Open the window at a tool'
complete -c lumora -n '__fish_seen_subcommand_from help' -a 'icons icon placeholders downscale color devices validate'

complete -c lumora -s h -l help -d 'Explain'
complete -c lumora -s V -l version -d 'Print the version'
complete -c lumora -s q -l quiet -d 'Print failures only'
complete -c lumora -s v -l verbose -d 'Name each file'
complete -c lumora -l json -d 'Print the result as JSON'

complete -c lumora -n "__fish_seen_subcommand_from $writing" -l to -x -a '(__fish_complete_directories)' -d 'Make a fresh folder in this one'
complete -c lumora -n "__fish_seen_subcommand_from $writing" -l out -x -a '(__fish_complete_directories)' -d 'Write exactly here'

complete -c lumora -n '__fish_seen_subcommand_from icons icon' -a '(__lumora_files png jpg jpeg tif tiff webp bmp gif icns)'
complete -c lumora -n '__fish_seen_subcommand_from icons icon' -l example -d 'Use the built-in picture'
complete -c lumora -n '__fish_seen_subcommand_from icons' -l platform -x -a '(__fish_append , iphone ipad mac android web-touch favicon all)' -d 'Platforms'
complete -c lumora -n '__fish_seen_subcommand_from icon' -l size -x -d 'Edge lengths in pixels, 1 to 1024'
complete -c lumora -n '__fish_seen_subcommand_from icon' -l corners -x -a 'none ios6 ios7' -d 'Rounded corners'
complete -c lumora -n '__fish_seen_subcommand_from icon' -s o -l output -r -F -d 'Write one icon to this file'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l set -x -a 'ios mac' -d 'Screen sizes'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l size -x -d 'Width and height'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -a '(__lumora_files png)'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -l dry-run -d 'Write nothing'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -l overwrite -d 'Replace what exists'
complete -c lumora -n '__fish_seen_subcommand_from color' -l as -x -a 'hex ios mac rgb css all' -d 'Notation'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l ios -x -a '4 5 6 7' -d 'Oldest iOS version'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l feature -x -a '(__fish_append , retina multitask siri video_rec compass gyroscope gps back_cam front_cam flash_cam bluetooth_le opengl_2 opengl_3)' -d 'Needed features'
complete -c lumora -n '__fish_seen_subcommand_from validate validator' -a '(__lumora_files ipa)'
complete -c lumora -n '__fish_seen_subcommand_from validate validator' -l icon -r -F -d 'Write the icon here'
complete -c lumora -n '__fish_seen_subcommand_from validate validator' -l no-sandbox -d 'Do not lock the process in'
