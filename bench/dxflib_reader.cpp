// Parses a drawing with dxflib and keeps nothing: what reading alone costs another library.
//
// Usage: dxflib_reader FILE

#include <cstdio>

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: dxflib_reader FILE\n", stderr);
        return 2;
    }
    DL_Dxf dxf;
    DL_CreationAdapter keepsNothing;
    if (!dxf.in(argv[1], &keepsNothing)) {
        std::fprintf(stderr, "dxflib_reader: can't read %s\n", argv[1]);
        return 3;
    }
    return 0;
}
