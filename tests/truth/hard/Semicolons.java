;;class A { };; interface B { };
enum C { };@interface D { }; ;