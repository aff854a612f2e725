<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>card</name>
    <message>
        <source>Matsu Ni Tsuru/F1/20/82</source>
        <translation>松に鶴</translation>
    </message>
    <message>
        <source>Matsu No Tan/F1/10/72</source>
        <translation>松に赤短</translation>
    </message>
    <message>
        <source>Matsu No Kasu/F1/0</source>
        <translation>松のカス</translation>
    </message>
    <message>
        <source>Ume Ni Uguisu/F2/5/81</source>
        <translation>梅に鶯</translation>
    </message>
    <message>
        <source>Ume No Tan/F2/10/71</source>
        <translation>梅に赤短</translation>
    </message>
    <message>
        <source>Ume No Kasu/F2/0</source>
        <translation>梅のカス</translation>
    </message>
    <message>
        <source>Sakura Ni Maku/F3/20/63,83</source>
        <translation>桜に幕</translation>
    </message>
    <message>
        <source>Sakura No Tan/F3/10/73</source>
        <translation>桜に赤短</translation>
    </message>
    <message>
        <source>Sakura No Kasu/F3/0</source>
        <translation>桜のカス</translation>
    </message>
    <message>
        <source>Fuji Ni Kakko/F4/5/22</source>
        <translation>藤に不如帰</translation>
    </message>
    <message>
        <source>Fuji No Tan/F4/10/12</source>
        <translation>藤に短冊</translation>
    </message>
    <message>
        <source>Fuji No Kasu/F4/0</source>
        <translation>藤のカス</translation>
    </message>
    <message>
        <source>Shoubu Ni Yatsuhashi/F5/5/23</source>
        <translation>菖蒲に八橋</translation>
    </message>
    <message>
        <source>Shoubu No Tan/F5/10/13</source>
        <translation>菖蒲に短冊</translation>
    </message>
    <message>
        <source>Shoubu No Kasu/F5/0</source>
        <translation>菖蒲のカス</translation>
    </message>
    <message>
        <source>Botan Ni Chou/F6/5/51</source>
        <translation>牡丹に蝶</translation>
    </message>
    <message>
        <source>Botan No Tan/F6/10/41</source>
        <translation>牡丹に青短</translation>
    </message>
    <message>
        <source>Botan No Kasu/F6/0</source>
        <translation>牡丹のカス</translation>
    </message>
    <message>
        <source>Hagi Ni Inoshishi/F7/5/21,31</source>
        <translation>萩に猪</translation>
    </message>
    <message>
        <source>Hagi No Tan/F7/10/11</source>
        <translation>萩に短冊</translation>
    </message>
    <message>
        <source>Hagi No Kasu/F7/0</source>
        <translation>萩のカス</translation>
    </message>
    <message>
        <source>Susuki Ni Tsuki/F8/20/61</source>
        <translation>芒に月</translation>
    </message>
    <message>
        <source>Susuki Ni Kari/F8/5/33</source>
        <translation>芒に雁</translation>
    </message>
    <message>
        <source>Susuki No Kasu/F8/0</source>
        <translation>芒のカス</translation>
    </message>
    <message>
        <source>Kiku Ni Sakazuki/F9/5/52,62</source>
        <translation>菊に盃</translation>
    </message>
    <message>
        <source>Kiku No Tan/F9/10/42</source>
        <translation>菊に青短</translation>
    </message>
    <message>
        <source>Kiku No Kasu/F9/0</source>
        <translation>菊のカス</translation>
    </message>
    <message>
        <source>Momiji Ni Shika/F10/5/32,53</source>
        <translation>紅葉に鹿</translation>
    </message>
    <message>
        <source>Momiji No Tan/F10/10/43</source>
        <translation>紅葉に青短</translation>
    </message>
    <message>
        <source>Momiji No Kasu/F10/0</source>
        <translation>紅葉のカス</translation>
    </message>
    <message>
        <source>Yanagi Ni Ono Toufuu/F11/5</source>
        <translation>柳に小野道風</translation>
    </message>
    <message>
        <source>Yanagi Ni Tsubame/F11/5</source>
        <translation>柳に燕</translation>
    </message>
    <message>
        <source>Yanagi No Tan/F11/10</source>
        <translation>柳に短冊</translation>
    </message>
    <message>
        <source>Yanagi No Kasu/F11/0/G</source>
        <translation>柳のカス</translation>
    </message>
    <message>
        <source>Kiri Ni Hooh/F12/20</source>
        <translation>桐に鳳凰</translation>
    </message>
    <message>
        <source>Kiri No Kasu/F12/10</source>
        <translation>桐のカス</translation>
    </message>
    <message>
        <source>Kiri No Kasu/F12/0</source>
        <translation>桐のカス</translation>
    </message>
</context>
<context>
    <name>core</name>
    <message>
        <source>%1 (%2 pts.)</source>
        <translation>%1（%2点）</translation>
    </message>
    <message>
        <source>Petalgarden Help</source>
        <translation>Petalgarden ヘルプ</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>システムの設定(&amp;S)</translation>
    </message>
    <message>
        <source>The help file cannot be found:
%1

It is installed with the game; installing Petalgarden again brings it back.</source>
        <translation>ヘルプファイルが見つかりません：
%1

ヘルプはゲームと一緒にインストールされます。Petalgarden をインストールし直すと元に戻ります。</translation>
    </message>
    <message>
        <source>Do you want to restart this session with your opponent?</source>
        <translation>対戦相手とのこのセッションをやり直しますか？</translation>
    </message>
    <message>
        <source>Do you want to quit the game in progress?</source>
        <translation>進行中のゲームをやめますか？</translation>
    </message>
    <message>
        <source>Game In Progress</source>
        <translation>ゲーム進行中</translation>
    </message>
    <message>
        <source>Click the deck to deal.</source>
        <translation>山札をクリックすると札を配ります。</translation>
    </message>
    <message>
        <source>Card table</source>
        <translation>場</translation>
    </message>
    <message>
        <source>the computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>the other player</source>
        <translation>相手</translation>
    </message>
    <message>
        <source>The deck turns %1 for you. You take %2.</source>
        <translation>山札から%1がめくれました。あなたは%2を取ります。</translation>
    </message>
    <message>
        <source>The deck turns %1 for %3. %4 takes %2.</source>
        <translation>%3の山札から%1がめくれました。%4は%2を取ります。</translation>
    </message>
    <message>
        <source>The deck turns %1 for you. You lay it down.</source>
        <translation>山札から%1がめくれました。あなたはそれを場に出します。</translation>
    </message>
    <message>
        <source>The deck turns %1 for %3. %4 lays it down.</source>
        <translation>%3の山札から%1がめくれました。%4はそれを場に出します。</translation>
    </message>
    <message>
        <source>You play %1 and take %2.</source>
        <translation>あなたは%1を出して%2を取ります。</translation>
    </message>
    <message>
        <source>%4 plays %1 and takes %2.</source>
        <translation>%4は%1を出して%2を取ります。</translation>
    </message>
    <message>
        <source>You lay down %1.</source>
        <translation>あなたは%1を場に出します。</translation>
    </message>
    <message>
        <source>%4 lays down %1.</source>
        <translation>%4は%1を場に出します。</translation>
    </message>
    <message>
        <source>You claim %1.</source>
        <translation>あなたが%1を取ります。</translation>
    </message>
    <message>
        <source>%4 claims %1.</source>
        <translation>%4が%1を取ります。</translation>
    </message>
    <message>
        <source>You make %1.</source>
        <translation>あなたは%1を揃えました。</translation>
    </message>
    <message>
        <source>%4 makes %1.</source>
        <translation>%4は%1を揃えました。</translation>
    </message>
    <message>
        <source>%1, %2 to %3.</source>
        <translation>%1、%2対%3。</translation>
    </message>
    <message>
        <source>Chat: %1</source>
        <translation>チャット：%1</translation>
    </message>
    <message>
        <source>Your turn.</source>
        <translation>あなたの番です。</translation>
    </message>
    <message>
        <source>%1&apos;s turn.</source>
        <translation>%1の番です。</translation>
    </message>
    <message>
        <source>The deck turns %1 for you. Choose a card for it to take.</source>
        <translation>山札から%1がめくれました。取る札を選んでください。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月（松）</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月（梅）</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月（桜）</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月（藤）</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月（菖蒲）</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月（牡丹）</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月（萩）</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月（芒）</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月（菊）</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10月（紅葉）</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月（柳）</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月（桐）</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Choose this card to play</source>
        <translation>この札を出す札に選ぶ</translation>
    </message>
    <message>
        <source>The table</source>
        <translation>場</translation>
    </message>
    <message>
        <source>Lay the chosen card down</source>
        <translation>選んだ札を場に出す</translation>
    </message>
    <message>
        <source>, can be taken</source>
        <translation>、取れます</translation>
    </message>
    <message>
        <source>Take this card</source>
        <translation>この札を取る</translation>
    </message>
    <message>
        <source>Deck, %1 cards left</source>
        <translation>山札、残り%1枚</translation>
    </message>
    <message>
        <source>, click to deal</source>
        <translation>、クリックで配ります</translation>
    </message>
    <message>
        <source>Deal</source>
        <translation>配る</translation>
    </message>
    <message>
        <source>Turned from the deck: %1</source>
        <translation>山札からめくれた札：%1</translation>
    </message>
    <message>
        <source>, waits to be placed</source>
        <translation>、置き場所を待っています</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1で%2点</translation>
    </message>
    <message>
        <source> and </source>
        <translation>と</translation>
    </message>
    <message>
        <source>holds %1</source>
        <translation>%1が揃っています</translation>
    </message>
    <message>
        <source>one card from %1</source>
        <translation>%1まであと1枚</translation>
    </message>
    <message>
        <source>no cards taken</source>
        <translation>取った札はありません</translation>
    </message>
    <message>
        <source>; </source>
        <translation>。</translation>
    </message>
    <message>
        <source>%1&apos;s hand, %2 cards</source>
        <translation>%1の手札、%2枚</translation>
    </message>
    <message>
        <source>Your score, %1</source>
        <translation>あなたの得点、%1</translation>
    </message>
    <message>
        <source>%1&apos;s score, %2</source>
        <translation>%1の得点、%2</translation>
    </message>
    <message>
        <source>, your turn</source>
        <translation>、あなたの番</translation>
    </message>
    <message>
        <source>, %1&apos;s turn</source>
        <translation>、%1の番</translation>
    </message>
    <message>
        <source>You win</source>
        <translation>あなたの勝ち</translation>
    </message>
    <message>
        <source>You lose</source>
        <translation>あなたの負け</translation>
    </message>
    <message>
        <source>You tie</source>
        <translation>引き分け</translation>
    </message>
    <message>
        <source>%1 wins</source>
        <translation>%1の勝ち</translation>
    </message>
    <message>
        <source>%1 loses</source>
        <translation>%1の負け</translation>
    </message>
    <message>
        <source>%1 ties</source>
        <translation>%1と引き分け</translation>
    </message>
    <message>
        <source>Yaku row: %1, taken</source>
        <translation>役の列：%1、取った札</translation>
    </message>
    <message>
        <source>Yaku row: %1, not taken</source>
        <translation>役の列：%1、まだ取っていない札</translation>
    </message>
    <message>
        <source>Show the cards of %1</source>
        <translation>%1の札を見る</translation>
    </message>
    <message>
        <source>One of the cards of %1</source>
        <translation>%1の札の一枚</translation>
    </message>
    <message>
        <source>Close the yaku&apos;s cards</source>
        <translation>役の札を閉じる</translation>
    </message>
    <message>
        <source>%1, %2, %3 points</source>
        <translation>%1、%2、%3点</translation>
    </message>
    <message>
        <source>the yaku of %1</source>
        <translation>%1の役</translation>
    </message>
    <message>
        <source>The computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>The other player</source>
        <translation>相手</translation>
    </message>
    <message>
        <source>Connection Status</source>
        <translation>接続状況</translation>
    </message>
    <message>
        <source>Waiting for your opponent to connect.</source>
        <translation>対戦相手の接続を待っています。</translation>
    </message>
    <message>
        <source>Attempting connection to your opponent.</source>
        <translation>対戦相手に接続しています。</translation>
    </message>
    <message>
        <source>Your opponent has successfully connected to your computer.  Click the deck to start the match.  Good Luck!</source>
        <translation>対戦相手があなたのコンピューターに接続しました。山札をクリックすると対戦が始まります。ご健闘を！</translation>
    </message>
    <message>
        <source>Connection Successful</source>
        <translation>接続しました</translation>
    </message>
    <message>
        <source>Waiting for your host to start the game</source>
        <translation>ホストがゲームを始めるのを待っています</translation>
    </message>
    <message>
        <source>Your host has just terminated the network connection.</source>
        <translation>ホストがネットワーク接続を切りました。</translation>
    </message>
    <message>
        <source>Remote Connection Closed</source>
        <translation>相手が接続を切りました</translation>
    </message>
    <message>
        <source>Your opponent has just terminated the network connection.</source>
        <translation>対戦相手がネットワーク接続を切りました。</translation>
    </message>
    <message>
        <source>An error occurred while trying to connect to your opponent.</source>
        <translation>対戦相手への接続中にエラーが起きました。</translation>
    </message>
    <message>
        <source>Client Connection Closed</source>
        <translation>クライアントの接続が切れました</translation>
    </message>
    <message>
        <source>Do you want to try and reconnect?</source>
        <translation>もう一度接続しますか？</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>Winsock Error %1</source>
        <translation>通信エラー %1</translation>
    </message>
    <message>
        <source>This computer is on no network: only a game on this computer can join, at port %1.</source>
        <translation>このコンピューターはネットワークにつながっていません。参加できるのはこのコンピューター上のゲームだけです（ポート %1）。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Your opponent will not be able to connect to your computer if you proceed.  Do you wish to proceed?</source>
        <translation>続けると、対戦相手はあなたのコンピューターに接続できなくなります。続けますか？</translation>
    </message>
    <message>
        <source>Connection to your opponent will be terminated.  Do you want to proceed? </source>
        <translation>対戦相手との接続を切ります。続けますか？</translation>
    </message>
    <message>
        <source>Cancel Connection</source>
        <translation>接続の取り消し</translation>
    </message>
    <message>
        <source>Close Connection</source>
        <translation>接続を切る</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Petalgarden Chat</source>
        <translation>Petalgarden チャット</translation>
    </message>
    <message>
        <source>Chat lines</source>
        <translation>チャットの発言</translation>
    </message>
    <message>
        <source>Your line</source>
        <translation>あなたの発言</translation>
    </message>
    <message>
        <source>the opponent&apos;s move &quot;%1&quot; does not fit this table</source>
        <translation>相手の手「%1」がこちらの場と合いません</translation>
    </message>
    <message>
        <source>the opponent&apos;s move &quot;%1&quot; does not fit the flipped card</source>
        <translation>相手の手「%1」がめくれた札と合いません</translation>
    </message>
    <message>
        <source>Time Out</source>
        <translation>時間切れ</translation>
    </message>
    <message>
        <source>The connected computer took too long to respond.</source>
        <translation>接続先のコンピューターの応答が遅すぎます。</translation>
    </message>
    <message>
        <source>Your host has restarted the session: the game in progress has ended, and your host deals the next one.</source>
        <translation>ホストがセッションをやり直しました。進行中のゲームは終わり、ホストが次のゲームを配ります。</translation>
    </message>
    <message>
        <source>Session Restarted</source>
        <translation>セッションのやり直し</translation>
    </message>
    <message>
        <source>Your opponent declined a rematch.</source>
        <translation>対戦相手は再戦を断りました。</translation>
    </message>
    <message>
        <source>Rematch Declined</source>
        <translation>再戦なし</translation>
    </message>
    <message>
        <source>the host&apos;s options &quot;%1&quot; came after the game had begun</source>
        <translation>ホストの設定「%1」がゲーム開始後に届きました</translation>
    </message>
    <message>
        <source>the host&apos;s options &quot;%1&quot; are no game that can be played</source>
        <translation>ホストの設定「%1」では遊べません</translation>
    </message>
    <message>
        <source>the move &quot;%1&quot; names no card</source>
        <translation>手「%1」がどの札も指していません</translation>
    </message>
    <message>
        <source>the opponent sent more moves than a turn holds</source>
        <translation>相手が一手番より多くの手を送ってきました</translation>
    </message>
    <message>
        <source>The two copies of the game are out of step: %1.

The connection has been closed, and the game goes on without your opponent.</source>
        <translation>二つのゲームの進行が食い違いました：%1。

接続を切りました。ゲームは対戦相手なしで続きます。</translation>
    </message>
    <message>
        <source>Out of Step</source>
        <translation>進行の食い違い</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>メモリが足りません。</translation>
    </message>
    <message>
        <source>The program cannot go on: %1</source>
        <translation>プログラムを続けられません：%1</translation>
    </message>
    <message>
        <source>Hall Of Fame</source>
        <translation>殿堂</translation>
    </message>
    <message>
        <source>Enter your Hall of Fame Name</source>
        <translation>殿堂に残す名前を入力してください</translation>
    </message>
    <message>
        <source>(Max 20 Characters)</source>
        <translation>（20文字まで）</translation>
    </message>
    <message>
        <source>Single games against people on the network</source>
        <translation>ネットワーク対戦の一局勝負</translation>
    </message>
    <message>
        <source>Tournaments against people on the network</source>
        <translation>ネットワーク対戦のトーナメント</translation>
    </message>
    <message>
        <source>Single games against the Standard computer</source>
        <translation>標準のコンピューターとの一局勝負</translation>
    </message>
    <message>
        <source>Tournaments against the Standard computer</source>
        <translation>標準のコンピューターとのトーナメント</translation>
    </message>
    <message>
        <source>Single games against the Strong computer</source>
        <translation>強いコンピューターとの一局勝負</translation>
    </message>
    <message>
        <source>Tournaments against the Strong computer</source>
        <translation>強いコンピューターとのトーナメント</translation>
    </message>
    <message>
        <source>%1 won</source>
        <translation>%1連勝</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>%1連敗</translation>
    </message>
    <message>
        <source>%1 tied</source>
        <translation>%1回連続引き分け</translation>
    </message>
    <message>
        <source>Games played</source>
        <translation>対戦数</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>勝ち</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>負け</translation>
    </message>
    <message>
        <source>Tied</source>
        <translation>引き分け</translation>
    </message>
    <message>
        <source>Share won</source>
        <translation>勝率</translation>
    </message>
    <message>
        <source>Best score</source>
        <translation>最高得点</translation>
    </message>
    <message>
        <source>Mean score</source>
        <translation>平均得点</translation>
    </message>
    <message>
        <source>Longest run of wins</source>
        <translation>最多連勝</translation>
    </message>
    <message>
        <source>Current run</source>
        <translation>現在の連続</translation>
    </message>
    <message>
        <source>Yaku 1</source>
        <translation>草短</translation>
    </message>
    <message>
        <source>Yaku 2</source>
        <translation>藤・菖蒲・萩のタネ</translation>
    </message>
    <message>
        <source>Yaku 3</source>
        <translation>猪・鹿・雁</translation>
    </message>
    <message>
        <source>Yaku 4</source>
        <translation>青短</translation>
    </message>
    <message>
        <source>Yaku 5</source>
        <translation>牡丹・菊・紅葉のタネ</translation>
    </message>
    <message>
        <source>Yaku 6</source>
        <translation>花見月見</translation>
    </message>
    <message>
        <source>Yaku 7</source>
        <translation>赤短</translation>
    </message>
    <message>
        <source>Yaku 8</source>
        <translation>表菅原</translation>
    </message>
    <message>
        <source>No games yet</source>
        <translation>まだ対戦がありません</translation>
    </message>
    <message>
        <source>Your margin in the last game</source>
        <translation>直近の対戦の点差</translation>
    </message>
    <message>
        <source>Your margin in the last %1 games</source>
        <translation>直近%1局の点差</translation>
    </message>
    <message>
        <source>Reset the statistics? The record of every game played so far is lost.</source>
        <translation>成績を消去しますか？これまでのすべての対戦の記録がなくなります。</translation>
    </message>
    <message>
        <source>Reset Statistics</source>
        <translation>成績の消去</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>成績</translation>
    </message>
    <message>
        <source>Petalgarden (Server)</source>
        <translation>Petalgarden（ホスト）</translation>
    </message>
    <message>
        <source>Petalgarden (Client)</source>
        <translation>Petalgarden（クライアント）</translation>
    </message>
    <message>
        <source>The Hall of Fame file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>殿堂のファイル「%1」を開けません：%2。</translation>
    </message>
    <message>
        <source>%1

The game goes on without it.</source>
        <translation>%1

ゲームは殿堂なしで続きます。</translation>
    </message>
    <message>
        <source>%1

Retry, or Cancel to play on without the Hall of Fame.</source>
        <translation>%1

再試行するか、キャンセルして殿堂なしで続けてください。</translation>
    </message>
    <message>
        <source>Access Denied</source>
        <translation>アクセスできません</translation>
    </message>
    <message>
        <source>The Hall of Fame file &quot;%1&quot; cannot be %2: %3.</source>
        <translation>殿堂のファイル「%1」を処理できません（%2）：%3。</translation>
    </message>
    <message>
        <source>%1

Another program holds the file. Retry once it has let go, or Cancel to go on without it.</source>
        <translation>%1

ほかのプログラムがファイルを使っています。使い終わってから再試行するか、キャンセルして殿堂なしで続けてください。</translation>
    </message>
    <message>
        <source>Hall of Fame</source>
        <translation>殿堂</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Margin chart</source>
        <translation>点差のグラフ</translation>
    </message>
    <message>
        <source>The statistics file &quot;%1&quot; cannot be opened: %2.

The game goes on; its results are not recorded.</source>
        <translation>成績のファイル「%1」を開けません：%2。

ゲームは続きますが、結果は記録されません。</translation>
    </message>
    <message>
        <source>It cannot be moved aside (%1)</source>
        <translation>脇に移せません（%1）</translation>
    </message>
    <message>
        <source>It is kept as &quot;%1&quot;</source>
        <translation>「%1」として残してあります</translation>
    </message>
    <message>
        <source>The statistics file &quot;%1&quot; cannot be used: %2.

%3, and a new record begins.</source>
        <translation>成績のファイル「%1」は使えません：%2。

%3。新しい記録を始めます。</translation>
    </message>
    <message>
        <source>The statistics file &quot;%1&quot; cannot be %2: %3.

The game goes on.</source>
        <translation>成績のファイル「%1」を処理できません（%2）：%3。

ゲームは続きます。</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Games</source>
        <translation>対戦</translation>
    </message>
    <message>
        <source>Yaku made</source>
        <translation>揃えた役</translation>
    </message>
    <message>
        <source>&amp;Reset Statistics...</source>
        <translation>成績の消去(&amp;R)...</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>回戦</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>あなた</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Opponent</source>
        <translation>相手</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>最終</translation>
    </message>
    <message>
        <source>You Win!</source>
        <translation>あなたの勝ち！</translation>
    </message>
    <message>
        <source>Tie Game!</source>
        <translation>引き分け！</translation>
    </message>
    <message>
        <source>You Lose!</source>
        <translation>あなたの負け！</translation>
    </message>
    <message>
        <source>Do you want to play again?</source>
        <translation>もう一度遊びますか？</translation>
    </message>
    <message>
        <source>Play Again?</source>
        <translation>もう一度？</translation>
    </message>
    <message>
        <source>Please Wait...</source>
        <translation>お待ちください...</translation>
    </message>
    <message>
        <source>Asking your opponent for another game.</source>
        <translation>対戦相手にもう一局するか尋ねています。</translation>
    </message>
    <message>
        <source>Waiting for your opponent to close the score card.</source>
        <translation>対戦相手が得点表を閉じるのを待っています。</translation>
    </message>
    <message>
        <source>Waiting for your host to start the next round.</source>
        <translation>ホストが次の回戦を始めるのを待っています。</translation>
    </message>
    <message>
        <source>Single Game High Score</source>
        <translation>一局勝負の高得点</translation>
    </message>
    <message>
        <source>Tournament High Score</source>
        <translation>トーナメントの高得点</translation>
    </message>
    <message>
        <source>Score Card</source>
        <translation>得点表</translation>
    </message>
    <message>
        <source>Score card</source>
        <translation>得点表</translation>
    </message>
    <message>
        <source>%1

The game goes on with its usual options.</source>
        <translation>%1

ゲームはいつもの設定で続きます。</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>本当に終了しますか？</translation>
    </message>
    <message>
        <source>Quit Petalgardn</source>
        <translation>Petalgarden の終了</translation>
    </message>
    <message>
        <source>Connection Error %1</source>
        <translation>接続エラー %1</translation>
    </message>
    <message>
        <source>Rounds cannot be less than 2 or greater than 20.</source>
        <translation>回戦数は2から20までにしてください。</translation>
    </message>
    <message>
        <source>Invalid Rounds Value</source>
        <translation>回戦数が正しくありません</translation>
    </message>
    <message>
        <source>Host IP field cannot be left blank.</source>
        <translation>ホストの IP を入力してください。</translation>
    </message>
    <message>
        <source>Required Field</source>
        <translation>入力が必要です</translation>
    </message>
    <message>
        <source>Your opponent is connected.  Saving the changes you made will end the connection.  Do you want to proceed?</source>
        <translation>対戦相手が接続しています。変更を保存すると接続が切れます。続けますか？</translation>
    </message>
    <message>
        <source>Opponent Connected</source>
        <translation>対戦相手が接続中</translation>
    </message>
    <message>
        <source>A game is already in session.  Saving the changes you made will reset the current game.  Do you want to proceed?</source>
        <translation>ゲームが進行中です。変更を保存すると今のゲームはやり直しになります。続けますか？</translation>
    </message>
    <message>
        <source>Reset Game</source>
        <translation>ゲームのやり直し</translation>
    </message>
    <message>
        <source>Created by</source>
        <translation>制作</translation>
    </message>
    <message>
        <source>The Petalgarden developers</source>
        <translation>Petalgarden 開発者一同</translation>
    </message>
    <message>
        <source>Release date</source>
        <translation>公開日</translation>
    </message>
    <message>
        <source>Special Thanks to</source>
        <translation>感謝を込めて</translation>
    </message>
    <message>
        <source>Everyone who plays Petalgarden</source>
        <translation>Petalgarden で遊ぶすべての方へ</translation>
    </message>
    <message>
        <source>Copyright © %1 The Petalgarden developers. Free software under GPL-3.0-or-later.</source>
        <translation>Copyright © %1 Petalgarden 開発者一同。GPL-3.0-or-later のフリーソフトウェアです。</translation>
    </message>
    <message>
        <source>Click Here to Close.....</source>
        <translation>ここをクリックして閉じる.....</translation>
    </message>
    <message>
        <source>designed for Windows&apos;98</source>
        <translation>Windows&apos;98 向けに設計</translation>
    </message>
    <message>
        <source>The game in progress cannot be saved: the file &quot;%1&quot; cannot be %2: %3.

The game goes on, but it cannot be resumed if the program ends.</source>
        <translation>進行中のゲームを保存できません。ファイル「%1」を処理できません（%2）：%3。

ゲームは続きますが、プログラムが終了すると再開できません。</translation>
    </message>
    <message>
        <source>&amp;Setup</source>
        <translation>設定(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>ヒント(&amp;H)</translation>
    </message>
    <message>
        <source>S&amp;tatistics</source>
        <translation>成績(&amp;T)</translation>
    </message>
    <message>
        <source>S&amp;ound</source>
        <translation>効果音(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Animations</source>
        <translation>アニメーション(&amp;A)</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Chat</source>
        <translation>チャット(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Score</source>
        <translation>得点表(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Hall of Fame</source>
        <translation>殿堂(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>ゲーム(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Resume your game? You %1, the computer %2.</source>
        <translation>ゲームを再開しますか？ あなた %1点、コンピューター %2点。</translation>
    </message>
    <message>
        <source>Resume your tournament? Round %1 of %2, you %3, the computer %4.</source>
        <translation>トーナメントを再開しますか？ %2回戦中の%1回戦目、あなた %3点、コンピューター %4点。</translation>
    </message>
    <message>
        <source>it cannot be %1 (%2)</source>
        <translation>処理できません（%1：%2）</translation>
    </message>
    <message>
        <source>it is far too long</source>
        <translation>長すぎます</translation>
    </message>
    <message>
        <source>it is a game against a computer (&quot;%1&quot;) that this version does not have</source>
        <translation>このバージョンにないコンピューター（「%1」）との対戦です</translation>
    </message>
    <message>
        <source>It cannot be moved aside (%1).</source>
        <translation>脇に移せません（%1）。</translation>
    </message>
    <message>
        <source>It is kept as &quot;%1&quot;.</source>
        <translation>「%1」として残してあります。</translation>
    </message>
    <message>
        <source>The saved game &quot;%1&quot; cannot be resumed: %2.

%3</source>
        <translation>保存したゲーム「%1」は再開できません：%2。

%3</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Single Game</source>
        <translation>一局勝負</translation>
    </message>
    <message>
        <source>Tournament</source>
        <translation>トーナメント</translation>
    </message>
    <message>
        <source>Rounds</source>
        <translation>回戦数</translation>
    </message>
    <message>
        <source>Game Type</source>
        <translation>勝負の形式</translation>
    </message>
    <message>
        <source>Use Yaku</source>
        <translation>役を使う</translation>
    </message>
    <message>
        <source>Game Options</source>
        <translation>対戦の方法</translation>
    </message>
    <message>
        <source>Single Player (you versus the computer)</source>
        <translation>一人で遊ぶ（あなた対コンピューター）</translation>
    </message>
    <message>
        <source>Host A Game (server side component)</source>
        <translation>ゲームを主催する（ホスト側）</translation>
    </message>
    <message>
        <source>Join A Game (client side component)</source>
        <translation>ゲームに参加する（クライアント側）</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>コンピューター：</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>強い</translation>
    </message>
    <message>
        <source>Host IP</source>
        <translation>ホストの IP</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source> PLAYER NAME</source>
        <translation> 名前</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>得点</translation>
    </message>
    <message>
        <source>YAKU</source>
        <translation>役</translation>
    </message>
    <message>
        <source>RND</source>
        <translation>回戦</translation>
    </message>
    <message>
        <source>SCORE AVG</source>
        <translation>平均得点</translation>
    </message>
    <message>
        <source>YAKU AVG</source>
        <translation>平均役数</translation>
    </message>
    <message>
        <source>Tournament Score Card</source>
        <translation>トーナメント得点表</translation>
    </message>
    <message>
        <source>%1

Restore Defaults keeps it as &quot;%2&quot; beside it and goes on with the usual options; Close ends the program.</source>
        <translation>%1

「デフォルトに戻す」を押すと、ファイルを「%2」として横に残し、いつもの設定で続けます。「閉じる」を押すとプログラムを終えます。</translation>
    </message>
    <message>
        <source>
  line 1, the game type, %1: %2</source>
        <translation>
  1行目（勝負の形式）は%1：%2</translation>
    </message>
    <message>
        <source>
  line 2, the rounds, %1: %2</source>
        <translation>
  2行目（回戦数）は%1：%2</translation>
    </message>
    <message>
        <source>
  line 3, the yaku flag, %1: %2</source>
        <translation>
  3行目（役を使うか）は%1：%2</translation>
    </message>
    <message>
        <source>holds no number</source>
        <translation>数がありません</translation>
    </message>
    <message>
        <source>a single game (0) is taken instead</source>
        <translation>代わりに一局勝負（0）を使います</translation>
    </message>
    <message>
        <source>10 is taken instead</source>
        <translation>代わりに10を使います</translation>
    </message>
    <message>
        <source>yaku count (-1) is taken instead</source>
        <translation>代わりに役を使う（-1）にします</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; holds values that the game cannot play with:%2.

The file stays as it is until you press OK in Setup.</source>
        <translation>設定ファイル「%1」に、ゲームで使えない値があります：%2。

設定で OK を押すまで、ファイルはそのままです。</translation>
    </message>
    <message>
        <source>on your own network</source>
        <translation>同じネットワークから</translation>
    </message>
    <message>
        <source>on the internet, through your router</source>
        <translation>インターネットから（ルーター経由）</translation>
    </message>
    <message>
        <source>on the internet, over IPv6</source>
        <translation>インターネットから（IPv6）</translation>
    </message>
    <message>
        <source>on the internet</source>
        <translation>インターネットから</translation>
    </message>
    <message>
        <source>A friend on the internet can still join over IPv6, or through a port forwarded to this computer by hand or by your provider.</source>
        <translation>それでも、インターネットの友だちは IPv6 で参加できます。ルーターやプロバイダーでこのコンピューターへのポート転送を設定しても参加できます。</translation>
    </message>
    <message>
        <source>Asking your router to open port %1 for a friend on the internet...</source>
        <translation>インターネットの友だちのために、ルーターにポート %1 を開くよう頼んでいます…</translation>
    </message>
    <message>
        <source>Your friend can join at %1, port %2.</source>
        <translation>友だちは %1 のポート %2 に参加できます。</translation>
    </message>
    <message>
        <source>No router answered the request to open port %1. %2</source>
        <translation>ポート %1 を開く依頼に、どのルーターも応答しませんでした。%2</translation>
    </message>
    <message>
        <source>Your router refused to open port %1. %2</source>
        <translation>ルーターがポート %1 を開くのを断りました。%2</translation>
    </message>
    <message>
        <source>Your router refused to open port %1 (%2). %3</source>
        <translation>ルーターがポート %1 を開くのを断りました（%2）。%3</translation>
    </message>
    <message>
        <source>Your router&apos;s own address on the internet is private or shared (a carrier&apos;s NAT), so opening a port on it cannot help. %1</source>
        <translation>ルーター自身のインターネット側アドレスがプライベートまたは共有（通信事業者の NAT）のため、ポートを開いても役に立ちません。%1</translation>
    </message>
    <message>
        <source>Your router&apos;s own address on the internet, %1, is private or shared (a carrier&apos;s NAT), so opening a port on it cannot help. %2</source>
        <translation>ルーター自身のインターネット側アドレス %1 がプライベートまたは共有（通信事業者の NAT）のため、ポートを開いても役に立ちません。%2</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt;, port %2&lt;br&gt;&lt;small&gt;%3&lt;/small&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;　ポート %2&lt;br&gt;&lt;small&gt;%3&lt;/small&gt;</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>%1 をコピー</translation>
    </message>
    <message>
        <source>Host Address</source>
        <translation>ホストのアドレス</translation>
    </message>
    <message>
        <source>%1

The options you chose hold until the program ends.</source>
        <translation>%1

選んだ設定は、プログラムを終了するまで有効です。</translation>
    </message>
    <message>
        <source>The host&apos;s address cannot be read.  Type a name, an IPv4 address or an IPv6 address, and a port after a colon if it is not 4800: for example 192.0.2.7, host.example:5000 or [2001:db8::7]:5000.</source>
        <translation>ホストのアドレスを読み取れません。名前、IPv4 アドレス、または IPv6 アドレスを入力してください。ポートが 4800 でなければコロンの後に書きます。例：192.0.2.7、host.example:5000、[2001:db8::7]:5000</translation>
    </message>
    <message>
        <source>Let friends across the internet join (opens the port on your router)</source>
        <translation>インターネットの友だちも参加できるようにする（ルーターのポートを開きます）</translation>
    </message>
</context>
</TS>
