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
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l set -x -a '(__fish_append , ios mac app-store play feature-graphic tv watch social launch)' -d 'Sizes'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l size -x -d 'Width and height'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l text -x -d 'What the pictures say'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l foreground -x -d 'Color of the text'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l background -x -d 'Color of the ground'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l format -x -a 'png webp svg' -d 'File type'
complete -c lumora -n '__fish_seen_subcommand_from placeholders downscale resizer' -l quality -x -d 'Of WebP, 0 to 100'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l check -x -a '(__fish_complete_directories)' -d 'Judge the screenshots in this folder'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -a '(__lumora_files png)'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -l dry-run -d 'Write nothing'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -l overwrite -d 'Replace what exists'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -l layout -x -a 'ios android flutter react-native web' -d 'Make every density'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -l from -x -a '2x 3x 4x xxxhdpi' -d 'Density to scale from'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -l to-scales -x -a '(__fish_append , 1x 1.5x 2x 3x mdpi hdpi xhdpi xxhdpi)' -d 'Densities to make'
complete -c lumora -n '__fish_seen_subcommand_from downscale resizer' -l format -x -a 'png webp' -d 'File type'
complete -c lumora -n '__fish_seen_subcommand_from color' -l as -x -a 'hex ios mac rgb css all' -d 'Notation'
complete -c lumora -n '__fish_seen_subcommand_from color' -l form -x -a '(__fish_append , swiftui uikit-swift uikit-objc appkit-swift appkit-objc colorset compose flutter android-xml kotlin css-hex css-rgb css-hsl css-hwb css-oklch css-p3 maui tailwind qml)' -d 'Forms of today'
complete -c lumora -n '__fish_seen_subcommand_from color' -l all -d 'Print every form of today'
complete -c lumora -n '__fish_seen_subcommand_from color' -l p3 -d 'Print Display P3 variants'
complete -c lumora -n '__fish_seen_subcommand_from color' -l contrast -x -d 'Judge the contrast with another color'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l ios -x -a '4 5 6 7' -d 'Oldest iOS version'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l feature -x -a '(__fish_append , retina multitask siri video_rec compass gyroscope gps back_cam front_cam flash_cam bluetooth_le opengl_2 opengl_3)' -d 'Needed features'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l today -d 'Use the list of all models'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l family -x -a '(__fish_append , iphone ipad ipod)' -d 'Families'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l chip -x -d 'Chips'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l capability -x -a '(__fish_append , armv7 arm64 metal arkit iphone-ipad-minimum-performance-a12 iphone-performance-gaming-tier)' -d 'Required capabilities'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l screen -x -a '(__fish_append , 6.9 6.5 6.3 6.1 5.5 4.7 4 3.5 13 11 10.5 9.7)' -d 'Screen classes'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l biometry -x -a '(__fish_append , none touchid faceid)' -d 'Biometry'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l with -x -a '(__fish_append , dynamic-island lidar usb-c 5g)' -d 'Parts'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l search -x -d 'Words in name or identifier'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l model -x -d 'A model by name or identifier'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l data -r -F -d 'List of models'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l csv -d 'Print comma-separated values'
complete -c lumora -n '__fish_seen_subcommand_from validate validator' -a '(__lumora_files ipa)'
complete -c lumora -n '__fish_seen_subcommand_from validate validator' -l icon -r -F -d 'Write the icon here'
complete -c lumora -n '__fish_seen_subcommand_from validate validator' -l no-sandbox -d 'Do not lock the process in'
