# Completion of gloamtide-still for fish.
set -l Shown sun moon analemma cities city-names grid timezones sundial twilight twilight-lines
complete -c gloamtide-still -l at -x -d 'The instant, Greenwich time' -a '(date -u +%Y-%m-%dT%H:%M:%SZ)'
complete -c gloamtide-still -l until -x -d 'A film up to this instant' -a '(date -u +%Y-%m-%dT%H:%M:%SZ)'
complete -c gloamtide-still -l step -x -d 'Between two pictures' -a '90s 15min 1h 1d 1y'
complete -c gloamtide-still -l rate -x -d 'Pictures a second' -a '12 24 30'
complete -c gloamtide-still -l yes -d 'A film of very many pictures, too'
complete -c gloamtide-still -l progress -d 'Tell how far a film is'
complete -c gloamtide-still -l config -r -d 'Show this configuration'
complete -c gloamtide-still -l place -x -d 'A city, or latitude,longitude'
complete -c gloamtide-still -l map -x -d 'The map' -a 'natural political terrain'
complete -c gloamtide-still -l show -x -d 'Show over the map' -a "(__fish_append , $Shown)"
complete -c gloamtide-still -l hide -x -d 'Do not show' -a "(__fish_append , $Shown)"
complete -c gloamtide-still -l only-map -d 'No menu bar, dates and almanac'
complete -c gloamtide-still -l size -x -d 'The size of the picture' -a '1280x720 1920x1080 2560x1440 3840x2160'
complete -c gloamtide-still -l screen-width -x -d 'The screen to lay out for' -a '640 800 1024 1280'
complete -c gloamtide-still -l scale -x -d 'Pixels for each one of the layout' -a '1 1.5 2 3'
complete -c gloamtide-still -l almanac -d 'Print the almanac as text'
complete -c gloamtide-still -l json -d 'Print the almanac as JSON'
complete -c gloamtide-still -l help -d 'Print the help'
complete -c gloamtide-still -l version -d 'Print the version'
