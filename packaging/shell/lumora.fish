# SPDX-License-Identifier: MIT
# fish completion for lumora. A new command gets a line in the first block and a block of its own.

complete -c lumora -n __fish_use_subcommand -a icons -d 'Write every icon of whole platforms'
complete -c lumora -n __fish_use_subcommand -a icon -d 'Write one icon of a size of your own'
complete -c lumora -n __fish_use_subcommand -a placeholders -d 'Write labelled grey pictures'
complete -c lumora -n __fish_use_subcommand -a downscale -d 'Halve double-resolution PNG pictures'
complete -c lumora -n __fish_use_subcommand -a color -d 'Print a colour as code'
complete -c lumora -n __fish_use_subcommand -a devices -d 'List the devices that can run an app'
complete -c lumora -n __fish_use_subcommand -a validate -d 'Check iOS application archives'
complete -c lumora -n __fish_use_subcommand -l version -d 'Print the version'
complete -c lumora -l help -d 'Explain'

complete -c lumora -n '__fish_seen_subcommand_from icons icon placeholders downscale' -l to -x -a '(__fish_complete_directories)' -d 'Folder to write into'
complete -c lumora -n '__fish_seen_subcommand_from icons icon placeholders downscale color devices validate' -l json -d 'Print the result as JSON'

complete -c lumora -n '__fish_seen_subcommand_from icons' -l platform -x -a '(__fish_append , iphone ipad mac android web-touch favicon all)' -d 'Platforms'
complete -c lumora -n '__fish_seen_subcommand_from icon' -l size -x -d 'Edge length in pixels, 1 to 1024'
complete -c lumora -n '__fish_seen_subcommand_from icon' -l corners -x -a 'none ios6 ios7' -d 'Rounded corners'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l set -x -a 'ios mac' -d 'Screen sizes'
complete -c lumora -n '__fish_seen_subcommand_from placeholders' -l size -x -d 'Width and height'
complete -c lumora -n '__fish_seen_subcommand_from downscale' -l dry-run -d 'Write nothing'
complete -c lumora -n '__fish_seen_subcommand_from downscale' -l overwrite -d 'Replace sources too'
complete -c lumora -n '__fish_seen_subcommand_from color' -l as -x -a 'hex ios mac rgb css all' -d 'Notation'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l ios -x -a '4 5 6 7' -d 'Oldest iOS version'
complete -c lumora -n '__fish_seen_subcommand_from devices' -l feature -x -a 'retina multitask siri video_rec compass gyroscope gps back_cam front_cam flash_cam bluetooth_le opengl_2 opengl_3' -d 'Needed feature'
complete -c lumora -n '__fish_seen_subcommand_from validate' -l icon -r -d 'Write the icon here'
