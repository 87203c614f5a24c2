// An open file.
#pragma once

namespace mardel {

// Owns an open file descriptor; -1 is none.
class descriptor {
 public:
  explicit descriptor(int number = -1) : number_(number) {}
  descriptor(descriptor&& other) noexcept : number_(other.number_) { other.number_ = -1; }
  descriptor& operator=(descriptor&& other) noexcept;
  ~descriptor();
  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_;
};

}  // namespace mardel
