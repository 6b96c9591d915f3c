// Find on the library as the build has made it.
#include "search/index.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/text.h"
#include "base/text_converter.h"
#include "host/memory/memory_desktop.h"

namespace quill::search {
namespace {

const std::string kData = "Quillmere.app/Contents/Data/";

struct IndexTest : testing::Test {
  IndexTest() {
    for (const auto& entry : std::filesystem::directory_iterator(QUILL_DATA)) {
      std::ostringstream bytes;
      bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
      desktop.files.AddFile(kData + entry.path().filename().string(), bytes.str());
    }
    index = Index::OfBundle();
  }

  host::MemoryDesktop desktop;
  std::unique_ptr<Index> index;
};

// The hits, as "Area Title".
std::vector<std::string> Find(const Index& index, const std::string& typed, std::size_t limit = 3,
                              int on_show = 0) {
  std::vector<std::string> found;
  for (const Hit& hit : index.Find(typed, on_show, limit).hits) {
    found.push_back(std::string(app::kModes.at(static_cast<std::size_t>(hit.mode)).area) + " " + hit.title);
    EXPECT_FALSE(hit.excerpt.forms.empty()) << typed << ": " << found.back() << ": " << hit.excerpt.line;
    for (const Range& range : hit.excerpt.marked)
      EXPECT_LE(range.end, base::Utf8ToMacRoman(hit.excerpt.line).size()) << typed << ": " << found.back();
  }
  return found;
}

// What is typed, and what is found among the first three.
constexpr const char* kAnswers = R"(
area:s area:w monologue=Stage Monologue; directions stage=Stage Stage directions; camera=Screen Camera words;
"ticking clock"=Screen Ticking clock; "beat sheet" area:tv=TV A beat sheet; "phone calls"=Screen Phone calls;
scene heading=Screen Scene headings; page length minutes=Screen How long; inciting=Screen Inciting incident;
area:bio keaton=Bio Buster Keaton; ten minute play=Stage Ten minutes; registered script=WGA Registering;
title page=Screen The title page; how long is a pilot=TV The pilot; dell'arte=Bio Commedia dell'arte;
where songs=Stage Where songs go; work for hire=WGA Work for hire; slug line=Screen Scene heading;
adapting novel=Screen Adapting; speculat=Screen Speculative script; protect script=WGA Registering;
writers' room=TV Writers' room; pension=WGA Pension and health; incit=Screen What sets it off;
phone call=Screen Phone calls; V.O. O.S.=Screen Off and over; fourth wall=Stage Fourth wall;
e and o=WGA E and O insurance; voice over=Screen Voice-over; query letter=Screen A letter; farce=Stage Farce;
area:stage stuck=Stage Stuck; bottle episode=TV The bottle; FLASHBACKS=Screen Flashback; moliere=Bio Molière;
AREA:wga option=WGA Options; arbitrating=WGA Arbitration; pilot area:tv=TV The pilot; logline=Screen Logline;
voice-over=Bio Voice-over; MELIES=Bio Georges Méliès; dramaturg=Stage Dramaturg; two-hand=Stage Two-hander;
margins=Screen The tools; find agent=Screen Agents; showrunner=TV Showrunner; cliffhang=TV Cliffhanger;
v.o=Screen Off and over; option pays=WGA Options; buchn=Bio Georg Büchner; residuals=WGA Residuals;
ampersand=WGA And, or &; ibsen=Bio Henrik Ibsen; calderon=Bio Calderón; cold op=TV Cold opens;
late pay=WGA Late pay; puppet=Stage Puppets; strikes=WGA A strike; Molière=Bio Molière; stuck=Screen Stuck;
lyrics=Stage Lyric; joinin=WGA Team;)";

TEST_F(IndexTest, FindsThePageThatAnswers) {
  EXPECT_TRUE(index->IsFromFile());
  std::istringstream rows(kAnswers);
  for (std::string typed, answer; std::getline(std::getline(rows >> std::ws, typed, '='), answer, ';');)
    EXPECT_THAT(Find(*index, typed), testing::Contains(answer)) << typed;
  EXPECT_EQ(Find(*index, "stuck", 1, 1).at(0), "Screen Stuck");
  EXPECT_EQ(Find(*index, "stuck", 1, 2).at(0), "Stage Stuck");
}

TEST_F(IndexTest, OffersTheNearestWords) {
  // What is typed, the word that stands nowhere, and one that is near.
  std::istringstream rows(
      "the+dialouge dialouge dialogue Chékov+plays chekov chekhov inceti inceti inciting teh teh the");
  for (std::string typed, unknown, nearest; rows >> typed >> unknown >> nearest;) {
    const Answer answer = index->Find(base::ReplaceAll(typed, "+", " "), {}, 5);
    EXPECT_EQ(answer.unknown, unknown);
    EXPECT_THAT(answer.nearest, testing::Contains(nearest)) << typed;
  }
  EXPECT_THAT(index->Find("zzzzzzzz " + std::string(900, 'x'), {}, 5).nearest, testing::IsEmpty());
}

TEST_F(IndexTest, TakesEveryQueryForWords) {
  using namespace std::string_literals;
  const std::string megabyte(1U << 20U, ' ');
  for (const std::string& typed :
       {"inciting \"'"s, "^inciting***"s, "inciting\0\0"s, "\xFF\xC3inciting\xE2\x80"s, "inciting" + megabyte,
        "\"\"\"inciting\" )(*:;--%_"s, base::ReplaceAll(megabyte, " ", "inciting \"")})
    EXPECT_THAT(Find(*index, typed), testing::Contains("Screen Inciting incident")) << typed.substr(0, 20);
  for (const std::string& typed :
       {"\"calls phone\""s, "area:zz stuck"s, "Quillmere"s, "\"'"s, "***"s, "NEAR(inciting"s,
        "title:inciting"s, "inciting OR zebrafish"s, "x'; DROP TABLE pages"s, megabyte,
        base::ReplaceAll(megabyte, " ", "inciting zz \" "), base::ReplaceAll(megabyte, " ", "\xC0")})
    EXPECT_THAT(Find(*index, typed), testing::IsEmpty()) << typed.substr(0, 20);
}

// Whatever lies beside the content, what is found is in the content.
TEST_F(IndexTest, NeedsNoFileAndTrustsNone) {
  const std::string whole = desktop.files.Bytes(kData + kIndexFile);
  const Library library = ReadLibrary();
  EXPECT_EQ(Index(library).FileBytes(), whole) << "the same content gave another file";
  std::size_t text = 0;
  for (const Text& page : library.texts) text += page.title.size() + page.body.size();
  EXPECT_LE(whole.size() * 2, text * 3);
  std::string changed = whole;
  ++changed[whole.size() / 2];
  for (const std::string& file : {std::string(), whole.substr(0, 40000), whole + "x", changed}) {
    const Index other(library, file);
    EXPECT_FALSE(other.IsFromFile()) << file.size();
    EXPECT_EQ(Find(other, "inciting", 9), Find(*index, "inciting", 9));
  }
  const std::string tv = kData + "TVQMR.xml";
  desktop.files.AddFile(tv, base::ReplaceAll(desktop.files.Bytes(tv), "showrunner", "zebrafish"));
  EXPECT_THAT(Find(*Index::OfBundle(), "zebrafish"), testing::Not(testing::IsEmpty()));
}

TEST(MarksTest, StandWhereAWordIsMeant) {
  const std::string text = "Éa writes. “Writing” is\nwritten; phone calls, a call";
  EXPECT_EQ(MarkedIn(text, "EA writ"), (std::vector<Range>{{0, 2}, {3, 9}, {12, 19}, {24, 31}}));
  EXPECT_EQ(MarkedIn(text, "\"phone calls\" wr"),
            (std::vector<Range>{{3, 9}, {12, 19}, {24, 31}, {33, 38}, {39, 44}}));
  EXPECT_EQ(MarkedIn(text, "area:e \"call phone\" '"), std::vector<Range>());
}

}  // namespace
}  // namespace quill::search
