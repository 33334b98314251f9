#include "host/app/window/frame/publishing.h"

#include "framework/support/objects/text.h"
#include "host/app/window/panels/wording.h"
#include "host/base/fileurl.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

namespace xbr::host {

namespace {

struct PublishingTexts {
    Q_DECLARE_TR_FUNCTIONS(xbr::host::Publishing)
};

std::string fileNameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

} // namespace

Notice Publishing::publish(const PublishEntry& entry, const std::vector<Song>& songs) {
    if (m_isRunning) {
        return {};
    }
    const QScopedValueRollback<bool> running(m_isRunning, true);
    return handOver(entry, songs);
}

QString Publishing::ask(IPublisher& publisher, Passage& passage) {
    static constexpr std::string_view kRendered = "wav";
    const QString name = xbr::host::fileNameOf(*passage.song);
    if (!passage.song->problem.isEmpty() || !problemOfFile(passage.file).empty()) {
        return PublishingTexts::tr("“%1” cannot be read.").arg(name);
    }
    IFileType* type = fileTypeOf(passage.file).detach();
    const Result result = publisher.acceptFileType(&type);
    const auto wanted = Ref<IFileType>::adopt(type);
    passage.isToRender = result != kOk;
    const bool isPossible = result == kOk || (wanted && view(wanted->extension()) == kRendered);
    return isPossible ? QString()
                      : PublishingTexts::tr("“%1” is of a kind that cannot be published.").arg(name);
}

QString Publishing::render(std::vector<Passage>& passages, RenderedSongs& rendered) {
    const Activity::Run rendering(*m_activity, Activity::Kind::kRendering, {});
    for (const Passage& passage : passages) {
        if (!passage.isToRender) {
            rendered.reserve(fileNameOf(passage.file));
        }
    }
    for (Passage& passage : passages) {
        if (!passage.isToRender) {
            continue;
        }
        const std::string target = rendered.choosePath(passage.file);
        std::string error;
        switch (rendered.render(passage.file, target, error)) {
        case RenderResult::kDone:
            passage.file = target;
            break;
        case RenderResult::kGivenUp:
            return PublishingTexts::tr("Rendering was cancelled; nothing was handed over.");
        case RenderResult::kFailed:
            return sentence("'" + fileNameOf(passage.file) + "' " + error);
        }
    }
    return {};
}

Notice Publishing::handOver(const PublishEntry& entry, const std::vector<Song>& songs) {
    const auto publisher = createPublisher(entry);
    if (!publisher) {
        return {NoticeKind::kError,
                PublishingTexts::tr("“%1” cannot be used.").arg(QString::fromStdString(entry.name))};
    }
    std::vector<Passage> passages;
    for (const Song& song : songs) {
        passages.push_back({&song, false, song.path});
        const QString problem = ask(*publisher, passages.back());
        if (!problem.isEmpty()) {
            return {NoticeKind::kError, problem};
        }
    }
    auto rendered = std::make_unique<RenderedSongs>();
    const QString problem = render(passages, *rendered);
    if (!problem.isEmpty()) {
        return {NoticeKind::kError, problem};
    }
    const auto items = make<PublishedItems>();
    for (const Passage& passage : passages) {
        items->add(fileUrl(passage.file), mediaOf(*passage.song));
    }
    if (publisher->publish(items.get()) != kOk) {
        return {NoticeKind::kError,
                PublishingTexts::tr("“%1” does not take the songs.").arg(QString::fromStdString(entry.name))};
    }
    m_rendered = std::move(rendered); // the former ones are no longer in the module's list
    return {NoticeKind::kInfo,
            PublishingTexts::tr("%n song(s) handed over. Complete the information, then upload.", nullptr,
                                static_cast<int>(songs.size()))};
}

} // namespace xbr::host
