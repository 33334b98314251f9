# Completion of xbrhost for fish. Never opens a browser, the keyring or the network.

set -l commands window publish genres sign-in sign-out status open-url help
set -l first "not __fish_seen_subcommand_from $commands"
set -l console "__fish_seen_subcommand_from publish genres sign-in sign-out status open-url"
set -l publish "__fish_seen_subcommand_from publish"

complete -c xbrhost -f
complete -c xbrhost -n "$first" -a window -d "Open the window, with songs"
complete -c xbrhost -n "$first" -a publish -d "Publish songs and folders"
complete -c xbrhost -n "$first" -a genres -d "List the genres of the service"
complete -c xbrhost -n "$first" -a sign-in -d "Sign in through the web browser"
complete -c xbrhost -n "$first" -a sign-out -d "Forget the sign-in"
complete -c xbrhost -n "$first" -a status -d "Tell who is signed in"
complete -c xbrhost -n "$first" -a open-url -d "Hand the link of the browser back"
complete -c xbrhost -n "$first" -a help -d "Help on a command"
complete -c xbrhost -n "__fish_seen_subcommand_from help" -a "$commands"
complete -c xbrhost -n "__fish_seen_subcommand_from genres" -a "(xbrhost genres --quiet 2>/dev/null)"
complete -c xbrhost -n "__fish_seen_subcommand_from window publish" -k -a "(
    for ending in wav w64 aif aiff aifc flac mp3 ogg oga caf au
        __fish_complete_suffix .\$ending
    end | string match -r -i '.*(/|\.(wav|w64|aiff?|aifc|flac|mp3|og[ga]|caf|au))\$' | sort -u)"

complete -c xbrhost -s h -l help -d "Help on the command"
complete -c xbrhost -l version -d "The version"
complete -c xbrhost -l module -r -k -a "(__fish_complete_suffix .so)" -d "The module to use"
complete -c xbrhost -n "$console" -s q -l quiet -d "Tell problems only"
complete -c xbrhost -n "$console" -s v -l verbose -d "Tell every step"
complete -c xbrhost -n "$console" -l json -d "One JSON object per line"
complete -c xbrhost -n "$publish" -l album -d "One album instead of singles"
complete -c xbrhost -n "$publish" -l album-title -x -d "Title of the album"
complete -c xbrhost -n "$publish" -l album-artist -x -d "Artist of the album"
complete -c xbrhost -n "$publish" -l genre -x -a "(xbrhost genres --quiet 2>/dev/null)" -d "Genre of all releases"
complete -c xbrhost -n "$publish" -l title -x -d "Title of the song before it"
complete -c xbrhost -n "$publish" -l artist -x -d "Artist of the song before it"
complete -c xbrhost -n "$publish" -l track-number -x -d "Number of the song before it"
complete -c xbrhost -n "$publish" -l release -r -k -a "(__fish_complete_suffix .json)" -d "What a release file says"
complete -c xbrhost -n "$publish" -s r -l recursive -d "Folders with the folders in them"
complete -c xbrhost -n "$publish" -s n -l dry-run -d "Show what would be sent and what is missing"
complete -c xbrhost -n "$publish" -l skip-unreadable -d "Leave out files that cannot be published"
complete -c xbrhost -n "$publish" -l skip-incomplete -d "Leave out singles with missing details"
complete -c xbrhost -n "$publish" -l again -d "Send what was published before, too"
complete -c xbrhost -n "$publish" -l as -x -d "Send only as this account"
