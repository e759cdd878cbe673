#!/usr/bin/env bash
# wide_moves.sh OBJDUMP LIBRARY: fails where code for Windows moves a wide register to or from memory and wants it
# aligned. The compiler believes its own places on the stack to be so, but Windows aligns that to 16 bytes only: such a
# move crashes there, and not under Wine.
set -uo pipefail
code=$("$1" --disassemble --no-show-raw-insn "$2") || exit 1
grep -q '%ymm' <<<"$code" || { echo "$2 has no wide registers: not the code that was meant"; exit 1; }
! grep -E 'vmov(aps|apd|dqa(32|64)?)\s.*\(' <<<"$code" | grep '%[yz]mm'
