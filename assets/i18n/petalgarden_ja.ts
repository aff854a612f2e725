<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>card</name>
    <message>
        <source>Matsu Ni Tsuru/F1/20/82</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matsu No Tan/F1/10/72</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matsu No Kasu/F1/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ume Ni Uguisu/F2/5/81</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ume No Tan/F2/10/71</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ume No Kasu/F2/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sakura Ni Maku/F3/20/63,83</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sakura No Tan/F3/10/73</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sakura No Kasu/F3/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fuji Ni Kakko/F4/5/22</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fuji No Tan/F4/10/12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fuji No Kasu/F4/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shoubu Ni Yatsuhashi/F5/5/23</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shoubu No Tan/F5/10/13</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shoubu No Kasu/F5/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Botan Ni Chou/F6/5/51</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Botan No Tan/F6/10/41</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Botan No Kasu/F6/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hagi Ni Inoshishi/F7/5/21,31</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hagi No Tan/F7/10/11</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hagi No Kasu/F7/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Susuki Ni Tsuki/F8/20/61</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Susuki Ni Kari/F8/5/33</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Susuki No Kasu/F8/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kiku Ni Sakazuki/F9/5/52,62</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kiku No Tan/F9/10/42</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kiku No Kasu/F9/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Momiji Ni Shika/F10/5/32,53</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Momiji No Tan/F10/10/43</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Momiji No Kasu/F10/0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yanagi Ni Ono Toufuu/F11/5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yanagi Ni Tsubame/F11/5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yanagi No Tan/F11/10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yanagi No Kasu/F11/0/G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kiri Ni Hooh/F12/20</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kiri No Kasu/F12/10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kiri No Kasu/F12/0</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core</name>
    <message>
        <source>%1 (%2 pts.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Petalgarden Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help file cannot be found:
%1

It is installed with the game; installing Petalgarden again brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
