// Random numbers written down beforehand.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

#include "core/interfacce.h"

namespace girovia {

class CasoScritto : public Caso {
 public:
  explicit CasoScritto(std::vector<double> numeri) : numeri_(std::move(numeri)) {}

  double Rnd() override {
    if (usati_ == numeri_.size()) throw std::logic_error("more draws than expected");
    return numeri_[usati_++];
  }
  std::size_t usati() const { return usati_; }

 private:
  std::vector<double> numeri_;
  std::size_t usati_ = 0;
};

}  // namespace girovia
