// Sealed texts: records of any content, under any key.
#include "rules.h"

using namespace Orbane;

namespace zeph_test {
namespace {

// Sometimes of a size that is none, which changes nothing.
void any_key(Draw& draw) {
  const unsigned long sizes[] = {16, 24, 32, 0, 15, 33};
  std::string key(40, '\0');
  for (char& byte : key) byte = static_cast<char>(draw.byte());
  const unsigned long size = sizes[draw.below(6)];
  const GuardedText bytes(key.substr(0, size), End::bare);
  Zeph_Encrypt_Reset_Key(size, reinterpret_cast<unsigned char*>(bytes.data()));
}

std::string header(std::uint32_t length, std::uint32_t pads) {
  std::string bytes;
  for (int i = 0; i < 32; i += 8) bytes += static_cast<char>(length >> i);
  for (int i = 0; i < 32; i += 8) bytes += static_cast<char>(pads >> i);
  return bytes + std::string(8, GuardedBuffer::pattern);
}

std::string opened(const std::string& record, std::size_t room, std::size_t result) {
  const GuardedText from(record, End::bare);
  const GuardedBuffer text(room);
  EXPECT_EQ(Zeph_Decrypt(from.data(), text.data()), result);
  EXPECT_EQ(Zeph_Decrypt(from.data(), nullptr), 0u);
  EXPECT_EQ(from.bytes(), record) << "the record is only read";
  return text.bytes();
}

// The length, the padding, and each block as if it were sealed alone.
void sealed_and_opened(Draw& draw) {
  any_key(draw);
  const std::string text = draw.text(400);
  const std::size_t length = (text.size() + 15) / 16 * 16, pads = length - text.size();
  const GuardedText from(text);
  const GuardedBuffer record(16 + length);
  EXPECT_EQ(Zeph_Encrypt(from.data(), nullptr), 0u);
  EXPECT_EQ(Zeph_Encrypt(from.data(), record.data()), length);
  const std::string bytes = record.bytes();
  EXPECT_EQ(bytes.substr(0, 16),
            header(static_cast<std::uint32_t>(length), static_cast<std::uint32_t>(pads)));
  if (length > 0) {
    EXPECT_EQ(opened(bytes, length, length), text + std::string(pads, '\0'));
  }
  const std::string filled = text + std::string(pads, 'X');
  for (std::size_t at = 0; at < length; at += 16) {
    const GuardedBuffer alone(32);
    Zeph_Encrypt(GuardedText(filled.substr(at, 16)).data(), alone.data());
    EXPECT_EQ(bytes.substr(16 + at, 16), alone.bytes().substr(16));
  }
  // In its place. The terminator of a text that fills its last block lies behind the record.
  const GuardedBuffer room(16 + std::max(length, text.size() + 1));
  std::memcpy(room.data() + 16, text.c_str(), text.size() + 1);
  EXPECT_EQ(Zeph_Encrypt(room.data() + 16, room.data()), length);
  EXPECT_EQ(std::string(room.data(), bytes.size()), bytes);
  EXPECT_EQ(Zeph_Decrypt(room.data(), room.data() + 16), length);
  EXPECT_EQ(std::string(room.data() + 16, text.size()), text);
}

// A foreign record opens block by block if its header is sound; otherwise nothing is written.
void foreign_records(Draw& draw) {
  any_key(draw);
  const std::size_t blocks = draw.text(9).size() % 10;
  std::string body(16 * blocks, '\0');
  for (char& byte : body) byte = static_cast<char>(draw.byte());
  auto length = static_cast<std::uint32_t>(body.size());
  auto pads = static_cast<std::uint32_t>(draw.below(18));
  if (draw.below(4) == 0) length += 1 + static_cast<std::uint32_t>(draw.below(15));
  if (draw.below(8) == 0) pads = static_cast<std::uint32_t>(draw.word());
  const bool sound = length != 0 && length % 16 == 0 && pads < 16;
  const std::string record = header(length, pads) + body;
  std::string expected(body.size(), GuardedBuffer::pattern);
  for (std::size_t at = 0; sound && at < body.size(); at += 16) {
    expected.replace(at, 16, opened(header(16, 0) + body.substr(at, 16), 16, 16));
  }
  if (sound) expected.replace(body.size() - pads, pads, pads, '\0');
  EXPECT_EQ(opened(record, body.size(), sound ? body.size() : 0), expected);
}

}  // namespace

const Family records_family{"records", {sealed_and_opened, foreign_records}};

}  // namespace zeph_test
