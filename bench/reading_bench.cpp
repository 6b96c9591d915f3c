// How long the reader's work takes: opening a content file, laying out a page,
// changing the page. Beside the opening stands what a program on this toolkit
// would use instead, its stream reader, which builds no tree and no document.
#include <benchmark/benchmark.h>

#include <QXmlStreamReader>
#include <fstream>
#include <sstream>
#include <string>

#include "app/product.h"
#include "content/loader.h"
#include "content/xml_file.h"
#include "host/memory/memory_desktop.h"
#include "host/qt/qt_desktop.h"
#include "reader/program.h"
#include "render/page_layout.h"

namespace {

std::string ReadData(const std::string& name) {
  std::ifstream file(std::string(QUILL_DATA) + "/" + name, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

void CountBytes(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * static_cast<std::int64_t>(state.iterations()));
}

void OpenAndLoad(benchmark::State& state) {
  const std::string text = ReadData("ScreenQMR.xml");
  quill::host::MemoryDesktop desktop;
  desktop.files.AddFile("Quillmere.app/Contents/Data/ScreenQMR.xml", text);
  for (auto _ : state) {
    quill::content::zkXMLFileClass file("ScreenQMR.xml");
    const auto document = std::make_shared<quill::content::Document>();
    benchmark::DoNotOptimize(file.Init() && file.GetDocument(document));
  }
  CountBytes(state, text.size());
}
BENCHMARK(OpenAndLoad);

void StreamReaderAlone(benchmark::State& state) {
  const std::string text = ReadData("ScreenQMR.xml");
  for (auto _ : state) {
    QXmlStreamReader reader(QByteArray::fromStdString(text));
    while (!reader.atEnd()) benchmark::DoNotOptimize(reader.readNext());
  }
  CountBytes(state, text.size());
}
BENCHMARK(StreamReaderAlone);

// The rest needs real metrics and pictures, and so the real desktop.
quill::Program* program = nullptr;
quill::Program& Reader() { return *program; }

void LayOutPage(benchmark::State& state) {
  Reader().DisplayWindow().ChooseMode(1);
  const auto page = Reader().App().doc->GetPage(2);
  quill::render::LayoutSettings settings;
  settings.geometry.SetMargins(page->GetColumns(), 640);
  settings.face.TextSize = 12;
  auto& metrics = quill::host::Desktop::Current().Metrics();
  for (auto _ : state) benchmark::DoNotOptimize(quill::render::LayOutPage(*page, settings, metrics));
}
BENCHMARK(LayOutPage)->Unit(benchmark::kMicrosecond);

void ChangeThePage(benchmark::State& state) {
  quill::nav::DisplayWindow& viewer = Reader().DisplayWindow();
  viewer.ChooseMode(1);
  for (auto _ : state) {
    viewer.ShowPage("0");  // which no trail records
    benchmark::ClobberMemory();
  }
}
BENCHMARK(ChangeThePage)->Unit(benchmark::kMicrosecond);

void ChangeTheMode(benchmark::State& state) {
  for (auto _ : state) Reader().DisplayWindow().ChooseMode(1);
}
BENCHMARK(ChangeTheMode)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  quill::host::QtDesktop::Options options;
  options.screen = quill::host::QtDesktop::Screen::kNone;
  options.messages = quill::host::QtDesktop::Messages::kStandardError;
  quill::host::QtDesktop desktop(argc, argv, quill::app::Quillmere(), options);
  quill::Program reader;
  program = &reader;
  benchmark::RunSpecifiedBenchmarks();
}
