extern "C" [[gnu::visibility("default")]] int kdrxEntryPoint(int, void*) {
    return 0;
}
