// The program's beginning and end, which the compiler's own runtime would bring.
extern "C"
{
    int __cdecl __getmainargs(int* count, char*** arguments, char*** environment, int expand,
                              int* mode);
    void __cdecl exit(int code);

    int _fltused = 0; // asked for where floating point is used

    void mainCRTStartup();
}

int main(int count, char** arguments);

void mainCRTStartup()
{
    int count;
    char** arguments;
    char** environment;
    int mode = 0;
    __getmainargs(&count, &arguments, &environment, 0, &mode);
    exit(main(count, arguments));
}
