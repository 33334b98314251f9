#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include <string>
#include <vector>

namespace xbr::host {

/// What a file dialog offers: the audio files that the list takes.
QString songFileFilter();

/// The files that locations stand for: files as they are, of folders the audio files in them and below, in
/// the order of their names, up to a bound. What is not of this computer is left out.
std::vector<std::string> songFilesOf(const QList<QUrl>& locations);

} // namespace xbr::host
