// The full-screen dark backdrop that lies behind every other form for the whole run.
#pragma once

#include "comune/ambiente.h"

namespace girovia {

class FormSfondo : public platform::Form {
 public:
  explicit FormSfondo(Ambiente& ambiente);

  void Form_Load() override;
  void PlaceOnPlane() override;  // maximised: as large as the plane

 private:
  Ambiente& a_;
  platform::Shape Shape1;
};

}  // namespace girovia
