// Linked into the programs of the sanitizer builds only. A driver that is unloaded before the leak check runs leaves
// memory behind that nobody can name any more; as long as it stays loaded, scripts/leaks_not_ours.txt can tell its
// memory from ours.

extern "C" int dlclose(void* /*library*/) {
    return 0;
}
