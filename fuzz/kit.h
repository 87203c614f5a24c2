// The library that wild hands work with.
#pragma once

namespace mardel {

// Two definitions of one name, parameters and pins of one name, pins beneath each other, no pins.
constexpr const char* kKit = R"(<library><name>Kit</name>
<sub><name>Bare</name></sub>
<sub><name>Valued</name><param><name>Gain</name><type>Number</type><default>1</default></param></sub>
<sub><name>Twice</name>
  <param><name>A</name><type>MREG</type><side>L</side></param>
  <param><name>B</name><type>MREG</type><side>R</side></param></sub>
<sub><name>Twice</name>
  <param><name>A</name><type>CONST</type><side>B</side></param>
  <param><name>C</name><type>MREG</type><side>L</side></param></sub>
<sub><name>Mix</name>
  <param><name>Gain</name><type>Number</type><default>0.5</default></param>
  <param><name>In</name><type>MREG</type><side>L</side></param>
  <param><name>In</name><type>MREG</type><side>L</side></param>
  <param><name>Out</name><type>MREG</type><side>R</side></param>
  <param><name>Gain</name><type>Other</type><default>2</default></param>
  <param><name>Mode</name><type/><default/></param></sub>
<sub><name>Amp</name>
  <param><name>In</name><type>MREG</type><side>L</side></param>
  <param><name>Cv</name><type>CREG</type><side>T</side></param>
  <param><name>Out</name><type>MREG</type><side>R</side></param></sub>
<sub><name>Odd</name>
  <param><name>First</name><type>MREG</type><side>X</side></param>
  <param><name>Under</name><type>SFR</type><side>Y</side></param></sub>
</library>)";

}  // namespace mardel
