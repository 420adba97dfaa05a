# The lens follows its scroll bars while the hand moves, by pointer and by key.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin
shot start

# The first scroll bar of the block at the upper left is the first to be reached by key.
activate "$bench"
key Tab
key Next
shot after_key
expect_different start after_key

# HScroll1 runs along the bottom edge; its thumb stands in the middle.
read -r width height < <(size "$bench")
move "$bench" $((width / 2)) $((height - 9))
press
move "$bench" $((width / 2 + 60)) $((height - 9))
sleep 0.2
move "$bench" $((width / 2 + 120)) $((height - 9))
shot held
release
shot released
expect_different after_key held
expect_same held released
end
