#include "app/product.h"

#include "app/mode_table.h"

namespace quill::app {
namespace {

constexpr std::int32_t IdOf(PictureId picture) { return static_cast<std::int32_t>(picture); }

}  // namespace

host::Product Quillmere() {
  return {"Quillmere",
          {{kCompanion, "qld7"}},
          {{IdOf(PictureId::kStage), "stage"},
           {IdOf(PictureId::kBlack), "black"},
           {IdOf(PictureId::kTv), "tv"},
           {IdOf(PictureId::kBoard), "board"},
           {IdOf(PictureId::kGreen), "green"},
           {IdOf(PictureId::kQmr), "qmr"}}};
}

}  // namespace quill::app
