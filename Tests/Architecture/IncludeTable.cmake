# Who may include whom. One rule a folder: the folder, then what its files may include besides themselves and the
# standard library. The longest folder that a file lies in decides. A pattern with a slash or an extension is a regular
# expression on the text of the include; the words below stand for groups.

set(INCLUDE_GROUPS
    "BOOST_POINTERS=^boost/(smart_ptr|core)/"
    "BOOST=^boost/"
    "GLOG=^glog/"
    "QT_CORE=^Q(Buffer|ByteArray|CoreApplication|CryptographicHash|DateTime|Dir|Event|EventLoop|File|FileInfo|Json[A-Za-z]*|Locale|MetaObject|MetaType|Object|Pointer|Settings|StandardPaths|String|StringList|TextStream|Thread|ThreadStorage|Timer|Translator|Url|UrlQuery|Variant|tEndian)$"
    "QT_GUI=^Q(Font|Color|Image|ImageWriter|FontDatabase|GuiApplication|Painter|Transform)$"
    "QT_MODEL=^Q(AbstractListModel|List|RegularExpression|Size|Collator|Hash|LibraryInfo|MimeData|SaveFile|Set|SysInfo|TemporaryDir|tGlobal|PersistentModelIndex)$"
    "QT_NETWORK=^Q(Network[A-Za-z]*|Ssl[A-Za-z]*|Tcp[A-Za-z]*|Host[A-Za-z]*)$"
    "QUAZIP=^quazip"
    "ZLIB=^zlib\\.h$"
    "QT_WIDGETS=^Q[A-Z][A-Za-z]*$"
    "FFMPEG=^lib(av[a-z]*|sw[a-z]*)/"
    "ASS=^(ass/|fontconfig/)"
    "TEXT=^(uchardet|iconv\\.h)"
    "CONTAINER=^Hypodermic/"
)

set(INCLUDE_RULES
    # folder                                  allowed
    "Modules/Subtitles/Entities|^Subtitles/Entities/ ^Core/(ioPath|EventPublisher|EventHandlerList)\\.h QT_CORE QT_GUI BOOST"
    "Modules/Subtitles/UseCases|^Subtitles/(Entities|UseCases)/ ^Transcoder/ ^App/ICustomizationManager\\.h ^Core/(ioPath|FileSystem|ScopedObservation|EventPublisher|EventHandlerList)\\.h ^Q(Hash|RegularExpression|Set)$ QT_CORE BOOST_POINTERS GLOG CONTAINER"
    "Modules/Subtitles/Adapters|^Subtitles/(Entities|UseCases|Adapters)/ ^Proc/[A-Za-z]+\\.h ^Core/ ^Conf/ ^App/ QT_CORE QT_GUI BOOST_POINTERS GLOG CONTAINER"
    "Modules/Subtitles/Details/OnlineSearch|^Subtitles/(Entities|UseCases)/ ^Subtitles/Details/OnlineSearch/ ^Subtitles/Version\\.h ^Core/ ^App/Configuration\\.h QT_CORE QT_MODEL QT_NETWORK QUAZIP ZLIB GLOG CONTAINER"
    "Modules/Subtitles/Details|^Subtitles/(Entities|UseCases|Adapters|Details)/ ^Core/(ioPath|EventHandlerList|EventPublisher|ScopedObservation)\\.h ^Conf/ ^App/ ^Gui/ QT_WIDGETS GLOG CONTAINER"
    "Modules/Subtitles|^Subtitles/"
    "Platform/Conf|^Conf/ ^Core/"
    "Platform/Core|^Core/ BOOST ^(fcntl|unistd|windows|io|dirent|share)\\.h ^sys/"
    "Platform/Proc/FFmpeg|^Proc/ ^Core/ ^Conf/ FFMPEG BOOST_POINTERS GLOG"
    "Platform/Proc/Ass|^Proc/ ^Core/ ^Conf/ ASS BOOST_POINTERS GLOG"
    "Platform/Proc/Text|^Proc/ ^Core/ ^Conf/ TEXT BOOST_POINTERS GLOG"
    "Platform/Proc/Blend|^Proc/ ^Core/ ^[a-z0-9]*intrin\\.h ^arm_neon\\.h"
    "Platform/Proc|^Proc/ ^Core/ ^Conf/ BOOST_POINTERS GLOG"
    "Platform/Transcoder|^Transcoder/ ^Proc/[A-Za-z]+\\.h ^Core/ ^Conf/ QT_CORE GLOG"
    "Platform/Gui|^Gui/ ^App/ ^Core/(Export|EventHandlerList|EventPublisher)\\.h ^Qt$ QT_WIDGETS"
    "Platform/App|^App/ ^Core/ QT_CORE GLOG"
    "Platform/Hypodermic|^Hypodermic/ BOOST"
    "Hosts/Desktop/Words|^Proc/Warning\\.h ^Desktop/(Words/|Films/FileKinds\\.h) ^Q(Application|Widget)$ ^Subtitles/Subtitles\\.h ^Subtitles/Entities/ ^Subtitles/Adapters/(HostBridge|SubtitleEncodingNames)\\.h ^Core/ ^Common/ QT_CORE QT_GUI QT_MODEL"
    "Hosts/Desktop/Films|^Desktop/(Words|Films)/ ^Subtitles/Subtitles\\.h ^Subtitles/Entities/ ^Subtitles/Adapters/(HostBridge|SubtitleEncodingNames)\\.h ^(App|Core|Conf|Proc|Transcoder)/[A-Za-z]+\\.h ^Common/ QT_CORE QT_GUI QT_MODEL"
    "Hosts/Desktop/Conversion|^Desktop/(Words|Films|Conversion)/ ^Subtitles/Subtitles\\.h ^Subtitles/Entities/ ^Subtitles/Adapters/(HostBridge|SubtitleEncodingNames)\\.h ^(App|Core|Conf|Proc|Transcoder)/[A-Za-z]+\\.h ^Common/ QT_CORE QT_MODEL"
    "Hosts/Desktop/Preview|^Desktop/(Words|Films|Preview)/ ^Subtitles/Subtitles\\.h ^Subtitles/Entities/ ^Subtitles/Adapters/(HostBridge|SubtitleEncodingNames)\\.h ^(App|Core|Conf|Proc|Transcoder)/[A-Za-z]+\\.h ^Common/ ^Gui/ QT_WIDGETS"
    "Hosts/Desktop/TextHelp|^Desktop/(Words|Films|TextHelp)/ ^Subtitles/Subtitles\\.h ^Subtitles/Entities/ ^Subtitles/Adapters/(HostBridge|SubtitleEncodingNames)\\.h ^(App|Core|Conf|Proc|Transcoder)/[A-Za-z]+\\.h ^Common/ ^Gui/ QT_WIDGETS"
    "Hosts/Desktop|^Subtitles/Subtitles\\.h ^Subtitles/Entities/ ^Subtitles/Adapters/(HostBridge|SubtitleEncodingNames|IEditingPanel|IItemPanel|IMessagesView)\\.h ^Subtitles/Details/(EditingPanel|ItemPanel)\\.h ^Subtitles/UseCases/(Composition|IOnline[A-Z][A-Za-z]*|ISearchDialogStatisticObserver)\\.h ^(App|Core|Conf|Proc|Transcoder|Gui)/[A-Za-z]+\\.h ^(Desktop|Common)/ QT_WIDGETS GLOG CONTAINER"
    "Hosts|^Subtitles/Subtitles\\.h ^Subtitles/Entities/ ^Subtitles/UseCases/(Composition|ISubtitleController|IOnline[A-Z][A-Za-z]*|IServerReportSource|ImdbId|SearchRequest|SearchResult|SearchQuery|ResultRanking|ReleaseName|I[A-Z][A-Za-z]*Factory)\\.h ^Subtitles/Adapters/(HostBridge|SubtitleEncodingNames)\\.h ^(App|Core|Conf|Proc|Transcoder)/[A-Za-z]+\\.h ^(Cli|Common)/ ^(io|shellapi|unistd|windows)\\.h ^sys/ioctl\\.h ^Q(NetworkProxy[A-Za-z]*|HostAddress|Char|Vector)$ QT_CORE QT_GUI GLOG CONTAINER"
)
