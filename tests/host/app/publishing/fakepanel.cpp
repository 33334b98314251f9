#include "tests/host/app/publishing/fakepanel.h"

#include "framework/abi/pluginmanager.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"

#include <QCoreApplication>

#include <algorithm>

namespace xbr::host {

namespace {

class QuietProgress final : public Object<IProgress> {
public:
    void update(double, Text) noexcept override {}
    bool isCancelled() noexcept override { return isEnded; }

    bool isEnded = false;
};

constexpr Uid kPanel = uid("b1d7e6a4-0d51-4f6c-9f0e-6f6bd1a10001");
constexpr Uid kPublisher = uid("b1d7e6a4-0d51-4f6c-9f0e-6f6bd1a10002");
constexpr int kConnect = 100;
constexpr int kUpload = 101;
constexpr int kAlbum = 102;

struct FakeTrack final : Object<IPropertySource> {
    explicit FakeTrack(const FakeScript& behaviour) : script(&behaviour) {}

    Result getProperty(Text name, Value* out) noexcept override {
        const bool isMissing =
            std::find(script->missing.begin(), script->missing.end(), view(name)) != script->missing.end();
        const char* text = isMissing ? "" : "set";
        const std::pair<std::string_view, Value> properties[] = {
            {"title", textValue(title)},
            {"file", textValue(file)},
            {"state", integerValue(static_cast<std::int64_t>(state))},
            {"uploading", boolValue(isUploading)},
            {"progress", floatValue(isUploading ? 0.5 : 0.0)},
            {"albumTitle", textValue(text)},
            {"albumArtist", textValue(text)},
            {"primaryGenre", textValue(text)},
            {"songTitle", textValue(text)},
            {"songArtist", textValue(text)},
        };
        const auto* const found = std::find_if(std::begin(properties), std::end(properties),
                                               [&](const auto& pair) { return pair.first == view(name); });
        *out = found == std::end(properties) ? noValue() : found->second;
        return found == std::end(properties) ? kFalse : kOk;
    }
    Result setProperty(Text, const Value&) noexcept override { return kFalse; }

    const FakeScript* script;
    std::string title;
    std::string file;
    TrackState state = TrackState::kNone;
    bool isUploading = false;
};

class FakeClient final : public Component {
public:
    explicit FakeClient(FakeScript& script) : Component("Client"), m_script(&script) {}

    Result getProperty(Text name, Value* out) noexcept override {
        *out = boolValue(xbr::view(name) == "isBusy" ? m_script->isBusy : m_script->isAuthorized);
        return kOk;
    }

private:
    FakeScript* m_script;
};

class FakeEditor final : public Component {
public:
    explicit FakeEditor(const FakeScript& script) : Component("TrackProperties") {
        int tag = 100;
        for (const char* name : {"albumTitle", "albumArtist", "songTitle", "songArtist"}) {
            addParameter(ParameterKind::kText, tag++, name);
        }
        if (!script.genres.empty()) {
            addParameter(ParameterKind::kList, tag, "primaryGenre").setChoices(script.genres);
        }
    }
};

class FakeTrackList final : public Component, public IListViewDelegate {
public:
    explicit FakeTrackList(FakeScript& script)
        : Component("TrackList"),
          m_script(&script),
          m_model(make<ListViewModel>(*this)) {
        addParameter(ParameterKind::kToggle, kAlbum, "albumUpload").set(integerValue(1));
        addChild(make<FakeEditor>(script));
        addObject("tracks", query<IObject>(m_model.get()));
    }
    ~FakeTrackList() override { m_model->detach(); }

    ListViewModel& model() { return *m_model; }

protected:
    void parameterChanged(Parameter& parameter) override { m_script->albumUpload = parameter.integer(); }

private:
    std::int32_t countColumns() const override { return 0; }
    Column columnAt(std::int32_t) const override { return {}; }
    Cell cellOf(IObject&, std::int32_t) const override { return {}; }
    bool isItemEditable(IObject&) const override { return false; }
    DropEffect dragOver(IObjectIterator&) override { return DropEffect::kNone; }
    Result drop(IObjectIterator&) override { return kFalse; }
    Result removeFocused() override { return kFalse; }
    Ref<ICommandList> contextCommands() override { return {}; }

    FakeScript* m_script;
    Ref<ListViewModel> m_model;
};

class FakePanel final : public Component {
public:
    explicit FakePanel(FakeScript& script)
        : Component("Panel"),
          m_script(&script),
          m_list(make<FakeTrackList>(script)) {
        current = this;
        addChild(make<FakeClient>(script));
        addChild(m_list);
        addParameter(ParameterKind::kCommand, kConnect, "connect");
        addParameter(ParameterKind::kCommand, kUpload, "upload").setEnabled(script.isUploadEnabled);
    }
    ~FakePanel() override { current = nullptr; }

    void addTrack(IObject& song) {
        Ref<IString> url;
        query<IUrlSource>(&song)->getUrl(url.out());
        const auto media = make<Attributes>();
        query<IMediaAttributes>(&song)->getMediaAttributes(media.get());
        auto track = make<FakeTrack>(*m_script);
        track->file = take(url);
        track->title = track->file.substr(track->file.rfind('/') + 1);
        m_script->published.push_back(track->title + "|" + media->getString("Media:Title") + "|" +
                                      media->getString("Media:Artist") + "|" +
                                      media->getString("Media:Genre"));
        m_tracks.push_back(track);
        m_list->model().append(query<IObject>(track.get()));
        m_list->model().signalChanged();
    }

    void notify(ISubject*, IMessage* message) noexcept override {
        if (isNamed(*message, "account")) {
            m_script->isBusy = true;
            post(*this, "accountKnown", m_script->accountQuery);
        } else if (isNamed(*message, "accountKnown")) {
            m_script->isBusy = false;
        } else if (isNamed(*message, "uploadNext")) {
            uploadNext();
        } else if (isNamed(*message, "answered")) {
            takeAnswer();
        }
    }

    static inline FakePanel* current = nullptr;

protected:
    void parameterChanged(Parameter& parameter) override {
        if (parameter.tag() == kConnect) {
            connect();
        } else if (parameter.tag() == kUpload) {
            if (m_script->duringUpload) {
                m_script->duringUpload();
            }
            uploadNext();
        }
    }

private:
    void connect() {
        if (m_script->duringConnect) {
            m_script->duringConnect();
        }
        m_script->isAuthorized = m_script->signsIn;
        if (m_script->isAuthorized) {
            post(*this, "account");
        }
    }

    void uploadNext() {
        const auto waiting = std::find_if(m_tracks.begin(), m_tracks.end(), [](const auto& track) {
            return track->state == TrackState::kNone;
        });
        if (m_script->isBusy || m_script->preparesNothing || waiting == m_tracks.end()) {
            return;
        }
        const auto progress = make<QuietProgress>();
        {
            const Activity::Run indicator(
                *m_script->activity, Activity::Kind::kPreparing, [&] { progress->isEnded = true; },
                progress.get());
            if (m_script->duringPreparation) {
                m_script->duringPreparation();
            }
            QCoreApplication::processEvents();
        }
        if (progress->isEnded) {
            return;
        }
        ++m_script->uploads;
        m_script->isBusy = true;
        m_current = waiting->get();
        m_current->isUploading = true;
        m_list->model().signalChanged();
        post(*this, "answered", 20);
    }

    void takeAnswer() {
        const std::size_t index = static_cast<std::size_t>(m_script->uploads) - 1;
        m_current->state = index < m_script->answers.size() ? m_script->answers[index] : TrackState::kDone;
        m_current->isUploading = false;
        m_script->isBusy = false;
        m_list->model().signalItemChanged(static_cast<std::int32_t>(index));
        post(*this, "uploadNext", -1);
    }

    FakeScript* m_script;
    Ref<FakeTrackList> m_list;
    std::vector<Ref<FakeTrack>> m_tracks;
    FakeTrack* m_current = nullptr;
};

class FakePublisher final : public Object<IPublisher> {
public:
    Result acceptFileType(IFileType** type) noexcept override {
        if (view((*type)->extension()) == "wav") {
            return kOk;
        }
        (*type)->release();
        XBRGetFileTypeRegistry()->createType(toText("wav"), type);
        return kInvalidArgument;
    }
    Result publish(IObjectIterator* items) noexcept override {
        Ref<IObject> item;
        while (items->next(item.out()) == kOk) {
            FakePanel::current->addTrack(*item);
        }
        return kOk;
    }
};

const ClassDescription kPanelClass{0, kPanel, toText("Gadget"), toText("Panel"), {}, {}};
const ClassDescription kPublisherClass{0, kPublisher, toText("Publisher"), toText("Publish"), {}, {}};

} // namespace

FakeModule::FakeModule(FakeScript& script) : m_classes(make<ClassFactory>()) {
    m_classes->add(kPanelClass, [&script] {
        const auto panel = make<FakePanel>(script);
        return query<IObject>(panel.get());
    });
    m_classes->add(kPublisherClass, creatorOf<FakePublisher>());
    XBRGetPlugInManager()->addFactory(m_classes.get());
}

FakeModule::~FakeModule() {
    XBRGetPlugInManager()->removeFactory(m_classes.get());
}

} // namespace xbr::host
