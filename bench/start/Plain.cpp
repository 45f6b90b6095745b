// The smallest program: what a start costs without the library.
int main()
{
    return 0;
}
