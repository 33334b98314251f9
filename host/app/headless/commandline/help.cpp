#include "host/app/headless/commandline/commandline.h"

namespace xbr::host {

namespace {

constexpr char kAll[] = R"(Usage: xbrhost [COMMAND] [OPTION]... [ARGUMENT]...

Publish finished songs:
  xbrhost publish MySong.wav            one song, as a single
  xbrhost publish --album NightDrive/   the songs of a folder, as an album
  xbrhost                               the same in a window

Commands:
  window [FILE...]   open the window, with songs; also without a command
  publish FILE...    publish songs and folders; signs in when needed
  genres [WORD]      list the service's genres, or those like WORD
  sign-in            sign in through the web browser
  sign-out           forget the sign-in
  status             tell who is signed in; opens no browser
  open-url URL       hand the browser's link back to the xbrhost that waits
  help [COMMAND]     this text, or the help of a command

)";

constexpr char kOptions[] = R"(Options of every command (values: --option VALUE or --option=VALUE):
  -q, --quiet        tell problems only
  -v, --verbose      tell every step
      --json         tell what happens as one JSON object per line
      --module PATH  the module to use
  -h, --help         help on the command
      --version      the version

)";

constexpr char kRest[] = R"(Environment:
  XBRHOST_CONFIG       settings (otherwise ~/.config/xbrhost/services.ini)
  XBRHOST_MODULE_PATH  modules: files and folders, separated by ":"
  TMPDIR               where copies lie while songs are prepared and sent

Exit codes:
   0  all done                         7  details are missing
   1  some song was not published      8  no running xbrhost takes the link
   2  wrong usage                      9  the settings are missing or wrong
   3  a file cannot be published      10  the sign-in has expired
   4  the module cannot be used       11  published before, nothing was sent
   5  not signed in                   12  the keyring is locked or silent
   6  the service cannot be reached  130  stopped by Ctrl-C or a signal
)";

constexpr char kPublishing[] = R"(Usage: xbrhost publish [OPTION]... FILE [SONG OPTION]... [FILE...]
       xbrhost publish [OPTION]... --release FILE

Each file is a single; with --album all are one album. A folder stands for the
songs in it, in the order of their names. WAV, FLAC and MP3 go as they are,
everything else is rendered to WAV. Options win over the files' tags; without
tags "01 Night Drive.wav" is number 1, title "Night Drive".

      --album              one album instead of singles
      --album-title TEXT   title of the album
      --album-artist TEXT  artist of the album
      --genre NAME         genre of all releases (see: xbrhost genres)
      --title TEXT         title of the song before it
      --artist TEXT        artist of the song before it, or of a folder's songs
      --track-number N     number of the song before it, 1 to 9999
      --release FILE       what a release file says (JSON, see xbrhost(1))
  -r, --recursive          folders with the folders in them
  -n, --dry-run            show what would be sent and what is missing
      --skip-unreadable    leave out files that cannot be published
      --skip-incomplete    leave out singles with missing details
      --again              send what was published before, too
      --as NAME            send only as this account

Examples:
  xbrhost publish --genre Ambient *.aiff
  xbrhost publish --album a.wav --title Night b.aiff --title=Day
  xbrhost publish -n --album --album-title "Night Drive" NightDrive/
  xbrhost publish --json a.wav | jq -r 'select(.event=="song").result'
)";

struct Topic {
    const char* name;
    const char* text;
};

constexpr Topic kTopics[] = {
    {"publish", kPublishing},
    {"window", R"(Usage: xbrhost [window] [--module PATH] [FILE]...

Opens the window with songs, and with the songs of folders. A window that is
open already comes to the front and gets them.
)"},
    {"genres", R"(Usage: xbrhost genres [OPTION]... [WORD]

Lists the genres that the service knows, or those that WORD finds: the genre of
that name, then those that begin with it, those of which a word does, and those
that hold it.
)"},
    {"sign-in", R"(Usage: xbrhost sign-in [OPTION]...

Signs in through the web browser, unless the stored sign-in is still good. When
the browser does not come back by itself, copy the link of its last page and
run in another terminal: xbrhost open-url 'LINK'
)"},
    {"sign-out", R"(Usage: xbrhost sign-out [OPTION]...

Removes the stored sign-in from this computer.
)"},
    {"status", R"(Usage: xbrhost status [OPTION]...

Asks the service who is signed in, with the stored sign-in. Opens no browser.
)"},
    {"open-url", R"(Usage: xbrhost open-url URL

Hands the link with which the browser comes back to the xbrhost that waits for
it. The desktop calls this.
)"},
    {"help", "Usage: xbrhost help [COMMAND]\n"},
};

} // namespace

std::string helpText(const std::string& topic) {
    if (topic.empty()) {
        return std::string(kAll) + kOptions + kRest;
    }
    std::string text;
    for (const Topic& one : kTopics) {
        text += topic == one.name ? one.text : "";
    }
    return topic == "window" || topic == "help" ? text : text + "\n" + kOptions;
}

} // namespace xbr::host
