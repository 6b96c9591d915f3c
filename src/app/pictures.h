// The six pictures that belong to the program. Each is read from the program's
// resources when it is first asked for and kept until this object goes.
#pragma once

#include <map>
#include <memory>

#include "app/mode_table.h"
#include "host/graphics.h"

namespace quill::app {

class Pictures {
 public:
  // Each returns the same object at every call; null if the resource can't be
  // read, which a later call tries again. No program of ours calls `stage`, `tv`
  // and `board`: the mode table names them by id.
  std::shared_ptr<host::Picture> stage() { return Get(PictureId::kStage); }
  std::shared_ptr<host::Picture> Black() { return Get(PictureId::kBlack); }
  std::shared_ptr<host::Picture> tv() { return Get(PictureId::kTv); }
  std::shared_ptr<host::Picture> board() { return Get(PictureId::kBoard); }
  std::shared_ptr<host::Picture> green() { return Get(PictureId::kGreen); }
  std::shared_ptr<host::Picture> qmr() { return Get(PictureId::kQmr); }

  // Ours, not the domain's: the same by id.
  std::shared_ptr<host::Picture> Get(PictureId id);

 private:
  std::map<PictureId, std::shared_ptr<host::Picture>> kept_;
};

}  // namespace quill::app
