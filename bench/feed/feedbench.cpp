#include "framework/abi/feed.h"
#include "framework/abi/filesystem.h"
#include "framework/abi/textformats.h"
#include "framework/abi/webservice.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "ui/news/feedelement.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <map>
#include <string>

// What opening the news costs for each entry, without its pictures: it has to be the same for 100 and for
// 1,000.

namespace brindlex {

namespace {

std::string entry(std::int64_t number) {
    const std::string index = std::to_string(number);
    return "<entry><id>tag:news.example,2025:" + index + "</id><title type=\"html\">News &amp;amp; notes " +
           index +
           "</title><updated>2025-06-02T09:30:00Z</updated><published>2025-06-02T09:30:00+02:00</published>"
           "<author><name>The staff</name></author><link rel=\"alternate\" href=\"news/" +
           index +
           "\"/><category term=\"Guide\"/><summary>What happened in a few words, in one or two sentences "
           "that "
           "fit below a picture.</summary><content type=\"xhtml\"><div "
           "xmlns=\"http://www.w3.org/1999/xhtml\">"
           "<p>A first paragraph with <b>bold</b> words and a <a href=\"https://news.example/\">link</a>, "
           "long "
           "enough for a few lines in a panel of the usual "
           "width.</p><ul><li>one</li><li>two</li><li>three</li>"
           "</ul><p>A last one.</p></div></content></entry>";
}

std::string document(std::int64_t entries) {
    std::string text =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?><feed xmlns=\"http://www.w3.org/2005/Atom\">"
        "<title>News</title>";
    for (std::int64_t i = 0; i < entries; ++i) {
        text += entry(i);
    }
    return text + "</feed>";
}

/// Feeds as files, each made once.
const std::string& feedFile(std::int64_t entries) {
    static const QTemporaryDir folder;
    static std::map<std::int64_t, std::string> files;
    std::string& url = files[entries];
    if (url.empty()) {
        url = "file://" + folder.path().toStdString() + "/" + std::to_string(entries) + ".atom";
        const std::string text = document(entries);
        xbr::Ref<xbr::IStream> stream;
        XBRGetFileSystem()->createFile(xbr::toText(url), stream.out());
        std::uint64_t done = 0;
        stream->write(text.data(), text.size(), &done);
    }
    return url;
}

void count(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// From the request for the document until every entry can be shown.
void openNews(benchmark::State& state) {
    const std::string& url = feedFile(state.range(0));
    for (auto _ : state) {
        auto feed = xbr::make<FeedElement>();
        feed->setLocation(url);
        feed->startDownload();
        while (feed->downloadState() == xbr::DownloadState::kRunning) {
            QCoreApplication::processEvents();
        }
        if (feed->itemCount() != state.range(0)) {
            state.SkipWithError("the feed was not read");
        }
        state.PauseTiming();
        feed.reset();
        state.ResumeTiming();
    }
    count(state);
}

xbr::Ref<xbr::MemoryStream> streamOf(const std::string& text) {
    auto stream = xbr::make<xbr::MemoryStream>();
    stream->write(text);
    return stream;
}

/// The reader alone.
void readFeed(benchmark::State& state) {
    const auto stream = streamOf(document(state.range(0)));
    const auto reader = xbr::query<xbr::IFeedReader>(XBRGetWebService());
    for (auto _ : state) {
        xbr::rewind(*stream);
        xbr::Ref<xbr::IFeed> feed;
        if (reader->readFeed(stream.get(), xbr::toText("https://news.example/feed"), {}, feed.out()) !=
            xbr::kOk) {
            state.SkipWithError("the feed was not read");
        }
    }
    count(state);
}

class Ignore final : public xbr::Object<xbr::IXmlHandler> {
public:
    void startElement(xbr::Text, xbr::IStringDictionary*) noexcept override {}
    void endElement(xbr::Text) noexcept override {}
    void characters(xbr::Text) noexcept override {}
};

/// The peer: the same document as XML of which nothing is kept.
void parseXmlOnly(benchmark::State& state) {
    const auto stream = streamOf(document(state.range(0)));
    const auto handler = xbr::make<Ignore>();
    for (auto _ : state) {
        xbr::rewind(*stream);
        if (XBRXmlParse(stream.get(), handler.get()) != xbr::kOk) {
            state.SkipWithError("the document was not read");
        }
    }
    count(state);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(100, 1000)->Unit(benchmark::kMillisecond)->MinTime(0.3);
}

BENCHMARK(openNews)->Apply(sizes);
BENCHMARK(readFeed)->Apply(sizes);
BENCHMARK(parseXmlOnly)->Apply(sizes);

} // namespace

} // namespace brindlex

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
