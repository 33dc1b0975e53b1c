#include "SampleTexts.h"

#include <algorithm>

namespace gallery {

const std::vector<SampleTexts> &allSampleTexts()
{
    static const std::vector<SampleTexts> all = {
        {QStringLiteral("en"), QStringLiteral("English"), QStringLiteral("Print"),
         QStringLiteral("Print all selected photos"), QStringLiteral("Photos"), QStringLiteral("Open"),
         QStringLiteral("Delete"), QStringLiteral("Share"), QStringLiteral("E-mail"), QStringLiteral("Folder"),
         QStringLiteral("Show details")},
        {QStringLiteral("de"), QStringLiteral("Deutsch"), QStringLiteral("Drucken"),
         QStringLiteral("Alle ausgewählten Fotos drucken"), QStringLiteral("Fotos"), QStringLiteral("Öffnen"),
         QStringLiteral("Löschen"), QStringLiteral("Teilen"), QStringLiteral("E-Mail"), QStringLiteral("Ordner"),
         QStringLiteral("Details anzeigen")},
        {QStringLiteral("ja"), QStringLiteral("日本語"), QStringLiteral("印刷"),
         QStringLiteral("選択した写真をすべて印刷"), QStringLiteral("写真"), QStringLiteral("開く"),
         QStringLiteral("削除"), QStringLiteral("共有"), QStringLiteral("メール"), QStringLiteral("フォルダー"),
         QStringLiteral("詳細を表示")},
        {QStringLiteral("ko"), QStringLiteral("한국어"), QStringLiteral("인쇄"),
         QStringLiteral("선택한 사진 모두 인쇄"), QStringLiteral("사진"), QStringLiteral("열기"),
         QStringLiteral("삭제"), QStringLiteral("공유"), QStringLiteral("이메일"), QStringLiteral("폴더"),
         QStringLiteral("자세히 표시")},
        {QStringLiteral("zh-chs"), QStringLiteral("简体中文"), QStringLiteral("打印"),
         QStringLiteral("打印所有选定的照片"), QStringLiteral("照片"), QStringLiteral("打开"), QStringLiteral("删除"),
         QStringLiteral("共享"), QStringLiteral("电子邮件"), QStringLiteral("文件夹"), QStringLiteral("显示详细信息")},
        {QStringLiteral("zh-cht"), QStringLiteral("繁體中文"), QStringLiteral("列印"),
         QStringLiteral("列印所有選取的相片"), QStringLiteral("相片"), QStringLiteral("開啟"), QStringLiteral("刪除"),
         QStringLiteral("分享"), QStringLiteral("電子郵件"), QStringLiteral("資料夾"), QStringLiteral("顯示詳細資料")},
        {QStringLiteral("ru"), QStringLiteral("Русский"), QStringLiteral("Печать"),
         QStringLiteral("Напечатать все выбранные фотографии"), QStringLiteral("Фотографии"), QStringLiteral("Открыть"),
         QStringLiteral("Удалить"), QStringLiteral("Поделиться"), QStringLiteral("Эл. почта"), QStringLiteral("Папка"),
         QStringLiteral("Показать сведения")},
        {QStringLiteral("el"), QStringLiteral("Ελληνικά"), QStringLiteral("Εκτύπωση"),
         QStringLiteral("Εκτύπωση όλων των επιλεγμένων φωτογραφιών"), QStringLiteral("Φωτογραφίες"),
         QStringLiteral("Άνοιγμα"), QStringLiteral("Διαγραφή"), QStringLiteral("Κοινή χρήση"), QStringLiteral("Email"),
         QStringLiteral("Φάκελος"), QStringLiteral("Εμφάνιση λεπτομερειών")},
        {QStringLiteral("tr"), QStringLiteral("Türkçe"), QStringLiteral("Yazdır"),
         QStringLiteral("Seçilen tüm fotoğrafları yazdır"), QStringLiteral("Fotoğraflar"), QStringLiteral("Aç"),
         QStringLiteral("Sil"), QStringLiteral("Paylaş"), QStringLiteral("E-posta"), QStringLiteral("Klasör"),
         QStringLiteral("Ayrıntıları göster")},
        {QStringLiteral("he"), QStringLiteral("עברית"), QStringLiteral("הדפסה"),
         QStringLiteral("הדפסת כל התמונות שנבחרו"), QStringLiteral("תמונות"), QStringLiteral("פתיחה"),
         QStringLiteral("מחיקה"), QStringLiteral("שיתוף"), QStringLiteral("דואר אלקטרוני"), QStringLiteral("תיקייה"),
         QStringLiteral("הצגת פרטים")},
    };
    return all;
}

const SampleTexts &sampleTexts(const QString &tag)
{
    const std::vector<SampleTexts> &all = allSampleTexts();
    const auto found =
        std::find_if(all.begin(), all.end(), [&tag](const SampleTexts &texts) { return texts.tag == tag; });
    return found != all.end() ? *found : all.front();
}

} // namespace gallery
